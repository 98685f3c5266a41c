// The main view as a real widget: opening recordings of a client and files from anywhere, the refusals with their
// exact messages, the stereo dialog, selection by dragging, the zoom, the read-outs, the commands, and the promise
// that a repaint copies what is computed rather than computing it again.
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "RunCommand.h"
#include "ViewFixtures.h"
#include "view/CConverter1.h"
#include "view/ReadOut.h"
#include "view/Selection.h"

namespace {

// What the view's strip menu offers, by command.
QAction* menuItem(const CAFView& view, int id) {
    for (QAction* item : view.contextMenu()->actions()) {
        if (item->data().toInt() == id) return item;
    }
    return nullptr;
}

// Answers the dialog "Open File" when it comes up: checks its texts, picks `choice` (a radio button's text) and
// presses the button named `button`.
void answerConverter(const QString& choice, const char* button, QStringList* texts) {
    QTimer::singleShot(0, [=] {
        auto* dialog = qobject_cast<CConverter1*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        *texts << dialog->windowTitle();
        for (const QLabel* label : dialog->findChildren<QLabel*>()) *texts << label->text();
        for (const QGroupBox* group : dialog->findChildren<QGroupBox*>()) *texts << group->title();
        const QList<QRadioButton*> radios = dialog->findChildren<QRadioButton*>();
        for (const QRadioButton* radio : radios) *texts << radio->text() + (radio->isChecked() ? " (checked)" : "");
        for (QRadioButton* radio : radios) {
            if (radio->text() == choice) radio->setChecked(true);
        }
        for (const QPushButton* push : dialog->findChildren<QPushButton*>()) *texts << push->text();
        dialog->findChild<QPushButton*>(button)->click();
    });
}

}  // namespace

class CAFViewTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void openingFromTheEmptyViewShowsTheSpectrogramAndTheSpectrumPageStays();
    void kindsOneAndThreeOpenTheQvSound();
    void anEmptyOrMissingRecordingIsErrorReadingFileAndARefusedFileEmptiesTheView();
    void aStereoFileFromOutsideIsFoldedAsChosenInTheDialog();
    void draggingEitherWaySelectsTheSameRangeAndStopsAtTheEnds();
    void zoomShowsTheSelectionAndTogglesBack();
    void readOutsGiveTimeFrequencyAndLevelAtThePointer();
    void aRepaintOrResizeCopiesThePictureAndTheSizeSettlesSharp();
    void theSpectrogramIsThePictureOfTheCommandLineTool();
    void liveBlocksGrowTheSpectrogramTheSpectrumAndTheStrip();
    void aNewColourSchemeRecoloursThePictureWithoutNewAnalysis();

private:
    FakePrompt* m_prompt = nullptr;
    ClientRoot* m_client = nullptr;
    CAFView* m_view = nullptr;
    void open(const char* demo = "pac001/wv001.wav");
    // A drag in the strip, with the menu it opens put away.
    void select(int from, int to) {
        dragInStrip(*m_view, from, to);
        m_view->contextMenu()->hide();
    }
};

void CAFViewTest::init() {
    m_prompt = new FakePrompt;
    m_client = new ClientRoot;
    m_view = new CAFView(*m_prompt);
    showForScreen(*m_view, {1024, 768});
    m_view->setCurrentClient(m_client->folder, "Ana Silva");
}

void CAFViewTest::cleanup() {
    delete m_view;
    delete m_client;
    delete m_prompt;
}

void CAFViewTest::open(const char* demo) {
    m_client->copyDemo(demo, "wv001.wav");
    QCOMPARE(m_view->OpenRecording(0, 1), 1);
}

void CAFViewTest::openingFromTheEmptyViewShowsTheSpectrogramAndTheSpectrumPageStays() {
    open();
    QCOMPARE(m_view->displayMode(), DisplayMode::FileSpectrogramMode);
    QCOMPARE(m_view->shownRange(), (SampleRange{0, 90469}));
    QCOMPARE(m_view->document()->title(), QString("Ana Silva  File - 1"));
    QCOMPARE(m_view->picture().columnsDone(), m_view->pictureDeviceRect().width());
    m_view->ShowSpectrumPage();
    QVERIFY(m_view->spectrumObject().valid());
    m_client->copyDemo("pac001/wv002.wav", "wv002.wav");
    QCOMPARE(m_view->OpenRecording(2, 2), 1);
    QCOMPARE(m_view->displayMode(), DisplayMode::FileSpectrumMode);
    // Closing leaves the empty view under the client's name; with nothing loaded the pages are the live ones.
    m_view->ShowEmpty();
    QCOMPARE(m_view->document()->title(), QString("Ana Silva"));
    QVERIFY(!m_view->action(kIdZoom)->isEnabled());
    m_view->ShowSpectrumPage();
    QCOMPARE(m_view->displayMode(), DisplayMode::LiveSpectrumMode);
    QVERIFY(m_prompt->shown.empty());
}

void CAFViewTest::kindsOneAndThreeOpenTheQvSound() {
    m_client->write("qv005.wav", waveBytes(sine(440, 44100, 0.5), 44100));
    m_client->write("wv005.wav", waveBytes(sine(440, 22050, 0.5), 22050));
    for (const auto& [kind, rate] : {std::pair{1, 44100}, {3, 44100}, {0, 22050}, {2, 22050}, {4, 22050}}) {
        QCOMPARE(m_view->OpenRecording(kind, 5), 1);
        QCOMPARE(m_view->rate(), rate);
    }
    // The rate's Limit list selects its third line: 7350 Hz at 22050 Hz.
    QCOMPARE(m_view->spectrogramObject().zoom(), 11025.0f / 7350.0f);
}

void CAFViewTest::anEmptyOrMissingRecordingIsErrorReadingFileAndARefusedFileEmptiesTheView() {
    open();
    m_client->write("wv003.wav", waveBytes({}, 22050));
    QCOMPARE(m_view->OpenRecording(0, 3), 0);
    QCOMPARE(m_view->OpenRecording(0, 4), 0);
    QCOMPARE(m_prompt->shown, (std::vector<std::string>{"Error Reading File", "Error Reading File"}));
    QCOMPARE(m_view->document()->title(), QString("Ana Silva"));
    QCOMPARE(m_view->OpenRecording(0, 1), 1);
    m_client->root.write("voice.wav", waveBytes(sine(300, 8000, 0.2), 8000));
    QCOMPARE(m_view->OpenRecordingFile(m_client->root / "voice.wav"), 0);
    QCOMPARE(m_prompt->last(), std::string("File rate must be 44100 Hz, 22050 Hz or 11025 Hz!"));
    QCOMPARE(m_view->displayMode(), DisplayMode::ModeEmpty);
    QVERIFY(!m_view->loadedRecording().hasSamples());
}

void CAFViewTest::aStereoFileFromOutsideIsFoldedAsChosenInTheDialog() {
    std::vector<std::int16_t> stereo;
    for (int i = 0; i < 4410; ++i) stereo.insert(stereo.end(), {static_cast<std::int16_t>(i), -7});
    m_client->root.write("stereo.wav", waveBytes(stereo, 22050, 2));
    QStringList texts;
    answerConverter("Only the Left Channel", "open", &texts);
    QCOMPARE(m_view->OpenRecordingFile(m_client->root / "stereo.wav"), 1);
    QCOMPARE(texts,
             (QStringList{"Open File", "Attention: This file was recorded in stereo mode. How do you want to open it?",
                          "Stereo to Mono", "Only the Left Channel", "Only the Right Channel", "Mix Channels (checked)",
                          "Open", "Cancel"}));
    const LoadedRecording& recording = m_view->loadedRecording();
    QCOMPARE(recording.SampleCount(), std::size_t{4410});
    QCOMPARE(recording.samples()[1234], std::int16_t{1234});
    // A file from outside the client's folder has no number, and so no notes.
    QCOMPARE(m_view->document()->title(), QString("File - stereo.wav"));
    QVERIFY(!CommandEnabled(kIdEditNotes, m_view->commandState()));
    // Refusing the dialog opens nothing.
    answerConverter("Only the Right Channel", "cancel", &texts);
    QCOMPARE(m_view->OpenRecordingFile(m_client->root / "stereo.wav"), 0);
    QCOMPARE(m_prompt->shown, std::vector<std::string>{"The file can´t be opened!"});
    QVERIFY(!recording.hasSamples());
}

void CAFViewTest::draggingEitherWaySelectsTheSameRangeAndStopsAtTheEnds() {
    open();
    const ViewLayout& layout = m_view->layout();
    const int a = layout.GraphLeft + 100;
    const int b = layout.GraphLeft + 300;
    for (const auto& [from, to] : {std::pair{a, b}, std::pair{b, a}}) {
        select(from, to);
        QCOMPARE(std::minmax(m_view->selStartX(), m_view->selEndX()), std::minmax(a, b));
    }
    select(layout.GraphLeft + 600, layout.graphRight() + 60);
    QCOMPARE(m_view->selEndX(), layout.graphRight());
    select(layout.GraphLeft + 600, layout.GraphLeft - 70);
    QCOMPARE(m_view->selEndX(), layout.GraphLeft);
    // A plain click in the strip leaves no selection and no menu.
    QTest::mouseClick(m_view, Qt::LeftButton, {}, widgetPoint(*m_view, {layout.GraphLeft + 150, layout.StripTop + 30}));
    QVERIFY(!m_view->hasSelection() && !m_view->contextMenu()->isVisible());
    // A finished drag opens the menu.
    dragInStrip(*m_view, layout.GraphLeft + 100, layout.GraphLeft + 200);
    QVERIFY(m_view->contextMenu()->isVisible());
    QVERIFY(menuItem(*m_view, kIdZoom)->isEnabled());
    m_view->contextMenu()->hide();
    // A right click far from the strip removes the selection instead of opening the menu.
    const QPoint far = widgetPoint(*m_view, {layout.GraphLeft + 100, layout.GraphTop + 10});
    QContextMenuEvent away(QContextMenuEvent::Mouse, far, m_view->mapToGlobal(far));
    QApplication::sendEvent(m_view, &away);
    QVERIFY(!m_view->hasSelection() && !m_view->contextMenu()->isVisible());
}

void CAFViewTest::zoomShowsTheSelectionAndTogglesBack() {
    open();
    const ViewLayout& layout = m_view->layout();
    select(layout.GraphLeft + 200, layout.GraphLeft + 400);
    const auto p = static_cast<std::int64_t>(200 * (90469.0f / 800.0f));
    m_view->action(kIdZoom)->trigger();
    QCOMPARE(m_view->shownRange(), (SampleRange{p, p + p}));
    QVERIFY(m_view->action(kIdZoom)->isChecked() && !m_view->hasSelection());
    // Zoomed, a click in the strip opens the menu, whose zoom item goes back.
    QTest::mouseClick(m_view, Qt::LeftButton, {}, widgetPoint(*m_view, {layout.GraphLeft + 50, layout.StripTop + 9}));
    QVERIFY(m_view->contextMenu()->isVisible());
    QCOMPARE(menuItem(*m_view, kIdZoom)->text(), QString("Zoom -"));
    menuItem(*m_view, kIdZoom)->trigger();
    m_view->contextMenu()->hide();
    QCOMPARE(m_view->shownRange(), (SampleRange{0, 90469}));
}

void CAFViewTest::readOutsGiveTimeFrequencyAndLevelAtThePointer() {
    open();
    const ViewLayout& layout = m_view->layout();
    hoverAt(*m_view, {layout.GraphLeft + 400, layout.GraphTop + 150});
    QVERIFY(!m_view->readOutBox().isEmpty() && m_view->cursor().shape() == Qt::CrossCursor);
    hoverAt(*m_view, {layout.GraphLeft + 400, layout.StripTop + 10});
    QVERIFY(m_view->readOutBox().isEmpty() && m_view->cursor().shape() == Qt::IBeamCursor);
    m_view->ShowSpectrumPage();
    // The level's base line is a tenth of the height above the bottom; 100 dB span the height.
    hoverAt(*m_view, {layout.GraphLeft + 1 + 200, layout.graphBottom() - 27 - 60});
    QCOMPARE(m_view->readOutLines(), QStringList{"1,84 kHz   20,00 dB"});  // 200 / 800 of 7350 Hz
}

void CAFViewTest::aRepaintOrResizeCopiesThePictureAndTheSizeSettlesSharp() {
    open();
    const qint64 picture = m_view->picture().image().cacheKey();
    m_view->repaint();
    QCOMPARE(m_view->picture().image().cacheKey(), picture);
    QCOMPARE(m_view->backBitmap().size(), m_view->size() * m_view->devicePixelRatioF());
    QCOMPARE(m_view->picture().size(), m_view->pictureDeviceRect().size());
    m_view->resize(800, 500);
    m_view->repaint();
    QCOMPARE(m_view->picture().image().cacheKey(), picture);  // shown scaled for now
    QCOMPARE(m_view->backBitmap().size(), QSize(800, 500) * m_view->devicePixelRatioF());
    QTRY_COMPARE(m_view->picture().size(), m_view->pictureDeviceRect().size());
    // 500 of the page's 666 high; the same scale across: 800 x 500 / 666 = 600.6 of 800.
    QCOMPARE(m_view->picture().size(), QSize(601, 250));
    // In a window of another shape the pointer still reads the page where it is drawn: half the width of 90469
    // samples at 22050 Hz, half the height of 7350 Hz.
    m_view->resize(1300, 700);
    hoverAt(*m_view, {m_view->layout().GraphLeft + 400, m_view->layout().GraphTop + 150});
    QCOMPARE(m_view->readOutLines(),
             QStringList{QString::fromStdString(ReadOutText(kSpectrogramReadOut, 3675.0, 45234.5 / 22050.0))});
}

void CAFViewTest::theSpectrogramIsThePictureOfTheCommandLineTool() {
    open();
    const QSize size = m_view->picture().size();
    const auto out = m_client->root / "cli.png";
    const CommandResult run = runCommand(
        std::string(SONALYS_CLI_PATH) + " spectrogram " + quoted(demoRecording("pac001/wv001.wav")) + " --out " +
        quoted(out) + " --width " + std::to_string(size.width()) + " --height " + std::to_string(size.height()));
    QCOMPARE(run.exitCode, 0);
    const QImage theirs = QImage(QString::fromStdString(out.string())).convertToFormat(QImage::Format_RGB32);
    QVERIFY(m_view->picture().image().convertToFormat(QImage::Format_RGB32) == theirs);
    // And that picture is what the page shows in the graph.
    const QRect area = m_view->pictureDeviceRect();
    const QImage shown = m_view->backBitmap().copy(area).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown.pixel(area.width() / 3, area.height() - 5), theirs.pixel(area.width() / 3, area.height() - 5));
    QCOMPARE(shown.pixel(200, 40), theirs.pixel(200, 40));
}

void CAFViewTest::liveBlocksGrowTheSpectrogramTheSpectrumAndTheStrip() {
    m_view->ShowSpectrogramPage();  // nothing loaded: ready to record at the engine's 11025 Hz
    const auto tone = sine(1000, 11025, 1.0);
    for (int b = 0; b < 10; ++b)
        m_view->DrawLiveBlock(std::span<const std::int16_t>(tone).subspan(static_cast<std::size_t>(b) * 458, 458));
    QCOMPARE(m_view->picture().columnsDone(), 20);  // each block paints its column twice
    QCOMPARE(m_view->liveTrace().count(), 10 * 4 * 8);
    // 1000 Hz of the 5512 Hz the Limit list selects at 11025 Hz.
    const QImage& picture = m_view->picture().image();
    const int row = picture.height() - static_cast<int>(1000.0 / 5512.0 * picture.height());
    QVERIFY(picture.scanLine(row)[15] < 30 && picture.scanLine(row - 40)[15] > 70);
    QCOMPARE(int(picture.scanLine(row)[25]), kBackgroundEntry);  // not painted yet
    const QRect area = m_view->pictureDeviceRect();
    QCOMPARE(m_view->savedGraph().pixel(area.left() + 15, area.top() + row),
             picture.convertToFormat(QImage::Format_RGB32).pixel(15, row));

    m_view->ShowSpectrumPage();
    QCOMPARE(m_view->liveTrace().count(), 0);
    for (int b = 0; b < 3; ++b) m_view->DrawLiveBlock(std::span<const std::int16_t>(tone).subspan(0, 2048));
    QCOMPARE(m_view->spectrumObject().nAveraged(), 3);
    QCOMPARE(m_view->liveTrace().count(), 3 * 4 * 8);  // half of each block
    QVERIFY(m_prompt->shown.empty());
}

void CAFViewTest::aNewColourSchemeRecoloursThePictureWithoutNewAnalysis() {
    open();
    const QImage before = m_view->picture().image().copy();
    m_view->spectrogramSettings().colourScheme = 0;
    m_view->spectrogramSettings().dynamicRange = 40;
    m_view->ApplyPalette();
    const QImage& after = m_view->picture().image();
    QVERIFY(std::equal(after.constBits(), after.constBits() + after.sizeInBytes(), before.constBits()));
    const Rgb c = BuildPalette(40, 0)[after.scanLine(20)[400]];
    QCOMPARE(m_view->backBitmap().pixel(m_view->pictureDeviceRect().topLeft() + QPoint(400, 20)),
             qRgb(c.red, c.green, c.blue));
}

QTEST_MAIN(CAFViewTest)
#include "CAFView_test.moc"
