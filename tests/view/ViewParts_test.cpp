// The main view's parts on their own: the two layouts and the mapping of the page onto the widget, the overview
// strip, the texts around the graph, selections in samples, the command table and the display mode's moves.
#include <vector>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "FakePrompt.h"
#include "view/DisplayModeRules.h"
#include "view/GraphCaptions.h"
#include "view/ReadOut.h"
#include "view/Selection.h"
#include "view/ViewCommands.h"
#include "view/ViewLayout.h"
#include "view/WaveStrip.h"

using M = DisplayMode;

class ViewPartsTest : public QObject {
    Q_OBJECT
private slots:
    void theLayoutIsSmallUpTo800By600AndOtherwiseMovesByHalfTheSizeAbove1024By768();
    void thePageKeepsItsShapeCentredAndPositionsMapBack();
    void stripSamplesStayInsideTheStripAtBothExtremes();
    void eachStripColumnTakesEightPointsAtEvenFractionsAndMissesWhatLiesBetween();
    void theLiveTraceKeepsTheNewestPointsFromTheLeft();
    void theStripFrameIsWhiteWithAnOutlineAndThreeGuideLines();
    void theDurationSplitsMinutesAboveAMinuteAndNeverShowsHours();
    void formatFileAndTimeAxisTexts();
    void theCaptionIsWholeAndTheFormatLineStaysInTheBand();
    void readOutsUseTheShownRangeAndTheTopFrequencyInABoxInsideTheGraph();
    void aSelectionBecomesARangeOfSamples();
    void commandsAreEnabledAndCheckedByTheState();
    void theDisplayModeMovesByOpeningTheCommandsAndRecording();

private:
    const ViewLayout m_small = ViewLayout::forScreen({800, 600});  // graph 92 + 671, 100 + 300; strip 445 to 495
};

void ViewPartsTest::theLayoutIsSmallUpTo800By600AndOtherwiseMovesByHalfTheSizeAbove1024By768() {
    // Small when either side is at most 800 wide or 600 high. The large one moves by half the size above 1024 x 768,
    // truncated, never by less than 0; the read-out row does not move down.
    const std::pair<QSize, QList<int>> rows[] = {
        // LargeLayout, GraphLeft, GraphWidth, GraphTop, GraphHeight, StripTop, StripHeight, TitleTop, TitleHeight,
        // PanelSplit
        {{800, 600}, {0, 92, 671, 100, 300, 100 + 300 + 45, 50, 50, 35, 400}},
        {{800, 1024}, {0, 92, 671, 100, 300, 445, 50, 50, 35, 400}},
        {{1024, 600}, {0, 92, 671, 100, 300, 445, 50, 50, 35, 400}},
        {{801, 601}, {1, 140, 800, 150, 300, 495, 70, 70, 60, 500}},
        {{1024, 768}, {1, 140, 800, 150, 300, 495, 70, 70, 60, 500}},
        {{1920, 1080}, {1, 140 + 448, 800, 150 + 156, 300, 495 + 156, 70, 70, 60, 500 + 448}},
        {{1281, 1025}, {1, 140 + 128, 800, 150 + 128, 300, 495 + 128, 70, 70, 60, 500 + 128}},
    };
    for (const auto& [screen, expected] : rows) {
        const ViewLayout l = ViewLayout::forScreen(screen);
        QCOMPARE(QList<int>({l.LargeLayout, l.GraphLeft, l.GraphWidth, l.GraphTop, l.GraphHeight, l.StripTop,
                             l.StripHeight, l.TitleTop, l.TitleHeight, l.PanelSplit}),
                 expected);
    }
    QCOMPARE(m_small.verticalStretch(), 1.0);
}

void ViewPartsTest::thePageKeepsItsShapeCentredAndPositionsMapBack() {
    const ViewLayout layout = ViewLayout::forScreen({1024, 768});
    QCOMPARE(layout.pageSize(), QSizeF(1024, 600));  // 768 less the window's 102, over 1.11
    // On a widget of the reference size, the stretch of the large layout is 111 / 100.
    QCOMPARE(layout.toWidget({1024, 666}).map(QPointF(140, 150)), QPointF(140, 166.5));
    // A wide, low window: the page is as high as the window, the same scale across, centred.
    const double across = (1200 - 1024 * 500 / 666.0) / 2;
    QCOMPARE(layout.toWidget({1200, 500}).map(QPointF(0, 0)), QPointF(across, 0));
    QCOMPARE(layout.toWidget({1200, 500}).map(QPointF(1024, 600)), QPointF(1200 - across, 500));
    // A tall, narrow one: as wide as the window, centred down.
    QCOMPARE(layout.toWidget({800, 1000}).map(QPointF(0, 0)), QPointF(0, (1000 - 666 * 800 / 1024.0) / 2));
    QCOMPARE(layout.toPage(layout.toWidget({1200, 500}).map(QPointF(140, 150)), {1200, 500}), QPointF(140, 150));
    QCOMPARE(m_small.pageSize(), QSizeF(800, 498));
    QCOMPARE(m_small.toWidget(QSizeF(800, 498)).map(QPointF(92, 100)), QPointF(92, 100));
}

void ViewPartsTest::stripSamplesStayInsideTheStripAtBothExtremes() {
    QCOMPARE(StripY(m_small, 0.0f), 470);
    QCOMPARE(StripY(m_small, 16384.0f), 457);  // 470 - 12.5, truncated
    QCOMPARE(StripY(m_small, -16384.0f), 482);
    QCOMPARE(StripY(m_small, -32768.0f), 494);  // 495 is the bottom: one pixel inside
    QCOMPARE(StripY(m_small, 32767.0f), 446);   // 445.0008 reaches the top: one pixel inside
}

void ViewPartsTest::eachStripColumnTakesEightPointsAtEvenFractionsAndMissesWhatLiesBetween() {
    const int width = m_small.GraphWidth;
    std::vector<std::int16_t> samples(static_cast<std::size_t>(width) * 16, 0);  // 16 samples a column
    samples[5 * 16 + 6] = -32768;                                                // column 5, point 3: 6 = 3 x 16 / 8
    samples[9 * 16 + 7] = -32768;  // between two points of column 9: never read
    const QPolygon trace = StripTrace(m_small, samples, 0, static_cast<std::int64_t>(samples.size()));
    QCOMPARE(trace.size(), width * 8);
    for (int i = 0; i < trace.size(); ++i) {
        QCOMPARE(trace[i].x(), m_small.GraphLeft + i / 8);
        QCOMPARE(trace[i].y(), i == 5 * 8 + 3 ? 494 : 470);
    }
}

void ViewPartsTest::theLiveTraceKeepsTheNewestPointsFromTheLeft() {
    LiveTrace live(10);  // 80 points
    std::vector<std::int16_t> block(64);
    for (int b = 0; b < 3; ++b) {
        for (int i = 0; i < 64; ++i) block[i] = static_cast<std::int16_t>(b * 64 + i);
        live.addBlock(block);  // 4 columns of 16 samples: points at 0, 2, ..., 14 of each
    }
    // 96 points were added; the 16 oldest (the first two columns of block 0) are gone.
    QCOMPARE(live.count(), 80);
    QCOMPARE(QList<float>({live.points()[0], live.points()[1], live.points()[79]}), QList<float>({32, 34, 128 + 62}));
    QCOMPARE(live.trace(m_small)[79], QPoint(m_small.GraphLeft + 9, StripY(m_small, 190.0f)));
}

void ViewPartsTest::theStripFrameIsWhiteWithAnOutlineAndThreeGuideLines() {
    QImage image(820, 500, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    DrawStrip(painter, m_small, {}, Qt::black);
    painter.end();
    for (const QPoint outline : {QPoint(300, 445), QPoint(300, 494), QPoint(92, 460), QPoint(92 + 671 + 1, 460)})
        QCOMPARE(image.pixel(outline), qRgb(0, 0, 0));
    for (const int y : {445 + 12, 445 + 25, 445 + 37}) QCOMPARE(image.pixel(300, y), kGuideLineColour);
    QCOMPARE(QList<QRgb>({image.pixel(300, 450), image.pixel(300, 496)}),
             QList<QRgb>({qRgb(255, 255, 255), qRgb(255, 0, 0)}));
}

void ViewPartsTest::theDurationSplitsMinutesAboveAMinuteAndNeverShowsHours() {
    const std::vector<std::tuple<std::int64_t, int, std::string>> rows = {
        {std::int64_t(61.5 * 22050), 22050, "00:01:01,500"},
        {std::int64_t{3700} * 11025, 11025, "00:61:40,000"},  // minutes run past 59
        {std::int64_t{60} * 44100, 44100, "00:00:60,000"},    // exactly 60 s stays in seconds
        {90469, 22050, "00:00:04,102"},                       // 4.1029 s: milliseconds truncated
        {0, 11025, "00:00:00,000"}};
    for (const auto& [count, rate, text] : rows) QCOMPARE(DurationText(count, rate), text);
}

void ViewPartsTest::formatFileAndTimeAxisTexts() {
    WaveFormat format{.nChannels = 1, .nSamplesPerSec = 22050, .wBitsPerSample = 16};
    QCOMPARE(FormatLineText(format), std::string("22050 Hz, 16 Bits Mono"));
    format.nChannels = 2;
    QCOMPARE(FormatLineText(format), std::string("22050 Hz, 16 Bits Stereo"));
    QCOMPARE(FileLineText(7, "pac001/wv007.wav"), std::string("File 7"));
    QCOMPARE(FileLineText(-1, "/home/me/Sounds/my voice.wav"), std::string("my voice.wav"));
    QCOMPARE(FileLineText(-2, "Models/a.wav"), std::string("Model"));
    // The time labels spread the shown range in sixths.
    QCOMPARE(TimeAxisLabel(0, 90469, 22050, 6), std::string("4,10 s"));
    QCOMPARE(TimeAxisLabel(22050, 44100, 22050, 3), std::string("1,50 s"));  // 1 + 3 x (1 / 6)
}

// The rows of `image` holding dark ink between columns `left` and `right`, first and last.
static std::pair<int, int> inkRows(const QImage& image, int left, int right) {
    std::pair<int, int> rows{-1, -1};
    for (int y = 0; y < image.height(); ++y)
        for (int x = left; x < right; ++x)
            if (qGray(image.pixel(x, y)) < 128) rows = {rows.first < 0 ? y : rows.first, y};
    return rows;
}

void ViewPartsTest::theCaptionIsWholeAndTheFormatLineStaysInTheBand() {
    for (const QSize screen : {QSize(800, 600), QSize(1024, 768)}) {
        const ViewLayout layout = ViewLayout::forScreen(screen);
        QImage page(layout.pageSize().toSize(), QImage::Format_RGB32);
        page.fill(Qt::white);
        QImage free = page;
        QPainter painter(&page);
        DrawCaptionRow(painter, layout, M::FileSpectrogramMode, "00:00:04,102");
        DrawFormatLine(painter, layout, "22050 Hz, 16 Bits Mono");
        painter.end();
        painter.begin(&free);  // the caption drawn with nothing to cut it
        painter.setFont(CaptionFont());
        painter.drawText(QPoint(layout.GraphLeft - 80, 200), "Spectrogram");
        painter.end();
        const auto [top, bottom] = inkRows(page, layout.GraphLeft - 80, layout.GraphLeft - 40);
        const auto [freeTop, freeBottom] = inkRows(free, layout.GraphLeft - 80, layout.GraphLeft - 40);
        QCOMPARE(bottom - top, freeBottom - freeTop);
        const int lineLeft = 176 + layout.XOffset;
        QCOMPARE(page.pixel(2, inkRows(page, lineLeft, lineLeft + 100).second), kTextRowColour);
    }
}

void ViewPartsTest::readOutsUseTheShownRangeAndTheTopFrequencyInABoxInsideTheGraph() {
    const ViewLayout layout = ViewLayout::forScreen({1024, 768});  // graph 140 + 800, 150 + 300
    QCOMPARE(ReadOutSeconds(layout, 140 + 200, 22050, 22050 + 8000, 22050), (22050 + 2000) / 22050.0);
    QCOMPARE(ReadOutHertz(layout, 150 + 150, 7350.0), 3675.0);
    QCOMPARE(ReadOutText(kSpectrogramReadOut, 3675.0, 1.0), std::string("3675,00 Hz   1,00 s"));
    QCOMPARE(ReadOutText(kSpectrumReadOut, 1.5, -3.256), std::string("1,50 kHz   -3,26 dB"));
    const QRect right = ReadOutBox(layout, {300, 300});
    QVERIFY(right.left() > 300 && right.top() == 285);                  // 15 above the pointer
    QVERIFY(ReadOutBox(layout, {940 - 150, 300}).right() < 940 - 150);  // within 200 of the right end
    QVERIFY(QRect(layout.pictureRect()).contains(ReadOutBox(layout, {141, 151})));
}

void ViewPartsTest::aSelectionBecomesARangeOfSamples() {
    FakePrompt prompt;
    // 100 samples a pixel: either way the range is the same. An insertion point takes its pixel position as its
    // length: first (300 - 92) x 100, length 300 x 100, not 0.
    QCOMPARE(*SelectionSampleRange(m_small, 67100, false, {}, 200, 100, prompt), (SampleRange{800, 10800}));
    QCOMPARE(*SelectionSampleRange(m_small, 67100, false, {}, 300, 300, prompt), (SampleRange{20800, 20800 + 30000}));
    // 90469 / 671 in float times 671 falls just short of 90469; the right end still ends the recording.
    for (const std::int64_t count : {std::int64_t{90469}, std::int64_t{671}, std::int64_t{26460000}})
        QCOMPARE(*SelectionSampleRange(m_small, count, false, {}, 92, 763, prompt), (SampleRange{0, count}));
    QVERIFY(SpansWholeStrip(m_small, 763, 92));
    QVERIFY(!SpansWholeStrip(m_small, 93, 763));
    // Zoomed, the range is the shown one.
    QCOMPARE(*SelectionSampleRange(m_small, 67100, true, {1000, 5000}, 100, 600, prompt), (SampleRange{1000, 5000}));
    QVERIFY(prompt.shown.empty());
    QVERIFY(!SelectionSampleRange(m_small, 67100, false, {}, 50, 200, prompt));  // an end left of the strip
    QCOMPARE(prompt.shown, std::vector<std::string>{"You need to select an area!"});
}

void ViewPartsTest::commandsAreEnabledAndCheckedByTheState() {
    using Change = void (*)(CommandState&);
    const auto none = [](CommandState&) {};
    const struct {
        const char* name;
        int id;
        Change change;
        bool enabled;
    } rows[] = {
        {"no Edit Notes for a file from outside", kIdEditNotes, [](CommandState& s) { s.RecordingNumber = -1; }, false},
        {"no Clean Texts on a live page", kIdCleanTexts, [](CommandState& s) { s.mode = M::LiveSpectrumMode; }, false},
        {"Cut over part of the strip", kIdCut, [](CommandState& s) { s.HasSelection = true; }, true},
        {"no Cut over the whole strip", kIdCut, [](CommandState& s) { s.HasSelection = s.SelectionSpansStrip = true; },
         false},
        {"no Zoom without a selection", kIdZoom, none, false},
        {"Zoom back when zoomed", kIdZoom, [](CommandState& s) { s.Zoomed = true; }, true},
        {"no Copy when zoomed", kIdCopy, [](CommandState& s) { s.HasSelection = s.Zoomed = true; }, false},
        {"no Undo after a copy", kIdUndo, [](CommandState& s) { s.EditKind = 2; }, false},
        {"no Record on the empty view", kIdRecord, [](CommandState& s) { s.mode = M::ModeEmpty; }, false},
        {"no Import outside a client", kIdImport, [](CommandState& s) { s.ClientCode = 99999; }, false},
        {"Compare while playing", kIdCompareWithFile, [](CommandState& s) { s.Playing = true; }, true},
        {"no unknown command", 12345, none, false},
    };
    // A client's recording, loaded and shown on the spectrogram page.
    const auto loaded = [](Change change) {
        CommandState s{.SampleCount = 1000, .mode = M::FileSpectrogramMode, .RecordingNumber = 3, .ClientCode = 1};
        change(s);
        return s;
    };
    for (const auto& row : rows) QVERIFY2(CommandEnabled(row.id, loaded(row.change)) == row.enabled, row.name);
    QVERIFY(CommandChecked(kIdZoom, loaded([](CommandState& s) { s.Zoomed = true; })));
    QVERIFY(!CommandChecked(kIdZoom, loaded(none)));
    for (const ViewCommand& command : kViewCommands) QCOMPARE(FindViewCommand(command.id), &command);  // ids unique
}

void ViewPartsTest::theDisplayModeMovesByOpeningTheCommandsAndRecording() {
    QCOMPARE(ModeAfterShowSpectrogram(M::LiveSpectrogramMode, true), M::LiveSpectrogramMode);  // nothing happens
    QCOMPARE(ModeAfterShowSpectrogram(M::FileSpectrumMode, true), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterShowSpectrogram(M::ModeEmpty, false), M::LiveSpectrogramMode);
    // Recording goes live, and back to the file page; from the empty view it keeps what was held before.
    QCOMPARE(ModeAfterStartRecording(M::FileSpectrogramMode, M::ModeEmpty), M::LiveSpectrogramMode);
    QCOMPARE(ModeAfterStartRecording(M::FileSpectrumMode, M::ModeEmpty), M::LiveSpectrumMode);
    QCOMPARE(ModeAfterStartRecording(M::ModeEmpty, M::FileSpectrumMode), M::FileSpectrumMode);
    QCOMPARE(ModeAfterStopRecording(M::LiveSpectrumMode), M::FileSpectrumMode);
}

QTEST_MAIN(ViewPartsTest)
#include "ViewParts_test.moc"
