// The F0 and formant curves of the main view: computed on demand on worker threads with the window kept alive,
// equal to a single-threaded run, drawn over a copy of the page and forgotten with the samples; and pictures of them.
#include <atomic>
#include <chrono>
#include <cmath>
#include <stdexcept>
#include <thread>

#include <QDir>
#include <QSignalSpy>
#include <QTimer>

#include "ViewFixtures.h"
#include "panels/CMyBarra.h"
#include "view/GraphCaptions.h"

namespace {

// Pixels of `colour` in the picture's part of `image`.
int countInPicture(const CAFView& view, const QImage& image, QRgb colour) {
    const QRect area = view.pictureDeviceRect();
    int n = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) n += image.pixel(x, y) == colour;
    return n;
}

}  // namespace

class ViewCurvesTest : public QObject {
    Q_OBJECT
private slots:
    void curvesEqualASingleThreadedRunAndAreDrawnOverACopyOfThePage();
    void speechInEachSchemeAtTwoSizesForPeopleToLookAt();
    void liveEstimateOfEveryFifthBlockIsWrittenInNavyWhileF0IsShown();
    void workAsideKeepsTheEventLoopRunning();
};

void ViewCurvesTest::curvesEqualASingleThreadedRunAndAreDrawnOverACopyOfThePage() {
    ClientRoot client;
    const std::vector<std::int16_t> voice = sine(200.0, 22050, 3.0);
    client.write("wv001.wav", waveBytes(voice, 22050));
    FakePrompt prompt;
    CAFView view(prompt);
    showForScreen(view, QSize(1024, 768));
    view.setCurrentClient(client.folder, "Client");
    QCOMPARE(view.OpenRecording(0, 1), 1);
    QSignalSpy busy(&view, &CAFView::busyText);

    view.RedrawF0(true);
    view.RedrawFormants(true);
    QCOMPARE(busy.count(), 4);
    QCOMPARE(busy.at(0).at(0).toString(), QString("Calculating F0..."));
    QCOMPARE(busy.at(2).at(0).toString(), QString("Calculating Formants..."));
    F0Track single;
    computeF0Curve(single, voice.data(), static_cast<int>(voice.size()), 22050, F0CurveSettings{60, 1400, 90, 1});
    QVERIFY(view.f0Track().valid);
    QCOMPARE(view.f0Track().values, single.values);
    FakePrompt quiet;
    FormantTracker tracker(quiet);
    FormantTrack formants;
    tracker.computeFormants(formants, voice, 22050);
    QCOMPARE(view.formantTrack().count(), formants.count());
    for (int i = 0; i < formants.count(); ++i) QCOMPARE(view.formantTrack().records[i].f2, formants.records[i].f2);

    // A steady 200 Hz voice: dots in the F0 colour of the scheme over the copy, none on the page beneath.
    const QRgb blue = qRgb(0, 0, 255);
    QVERIFY(countInPicture(view, view.savedGraph(), blue) > countInPicture(view, view.backBitmap(), blue));
    view.spectrogramSettings().colourScheme = 1;
    view.ApplyPalette();
    QVERIFY(countInPicture(view, view.savedGraph(), qRgb(255, 0, 0)) >
            countInPicture(view, view.backBitmap(), qRgb(255, 0, 0)));
    view.RedrawF0(false);
    view.RedrawFormants(false);
    QCOMPARE(view.savedGraph(), view.backBitmap());
    QCOMPARE(busy.count(), 4);  // shown again later, nothing is computed twice
    view.RedrawF0(true);
    QCOMPARE(busy.count(), 4);
    // Other samples get their F0 computed anew (the formants stay hidden); closing forgets the curves.
    client.write("wv002.wav", waveBytes(sine(300.0, 22050, 1.0), 22050));
    QCOMPARE(view.OpenRecording(0, 2), 1);
    QCOMPARE(busy.count(), 6);
    QVERIFY(view.f0Track().valid && view.f0Track().values != single.values);
    view.CloseRecording();
    QVERIFY(!view.f0Track().valid && !view.formantTrack().valid && view.f0Track().count() == 0);
    QVERIFY(prompt.shown.empty());
}

// Pictures of the demo speech with both curves and a read-out up, written under the build tree, each with dots of
// its scheme's F0 colour over the picture.
void ViewCurvesTest::speechInEachSchemeAtTwoSizesForPeopleToLookAt() {
    ClientRoot client;
    client.copyDemo("pac001/wv001.wav", "wv001.wav");
    QDir().mkpath("screenshots");
    for (const QSize screen : {QSize(1024, 768), QSize(1920, 1080)}) {
        for (int scheme = 0; scheme < 3; ++scheme) {
            FakePrompt prompt;
            CAFView view(prompt);
            showForScreen(view, screen);
            view.setCurrentClient(client.folder, "Demo client");
            view.spectrogramPanel()->OnColorCommand(kFirstColourCommand + scheme);  // the strip shows it too
            QCOMPARE(view.OpenRecording(0, 1), 1);
            view.RedrawF0(true);
            view.RedrawFormants(true);
            view.ShowF0Readout(123.45f);
            const QImage shot = view.grab().toImage();
            QVERIFY(countInPicture(view, shot, F0DotColour(scheme).rgb()) > 100);
            QVERIFY(shot.save(
                QString("screenshots/curves-%1x%2-scheme%3.png").arg(screen.width()).arg(screen.height()).arg(scheme)));
        }
    }
}

void ViewCurvesTest::liveEstimateOfEveryFifthBlockIsWrittenInNavyWhileF0IsShown() {
    FakePrompt prompt;
    CAFView view(prompt);
    showForScreen(view, QSize(800, 600));
    view.ShowSpectrogramPage();  // nothing loaded: the live page at 11025 Hz
    view.RedrawF0(true);
    const QImage page = view.backBitmap();
    QVERIFY(view.savedGraph() != page);  // the F0 scale stands before any samples
    const std::vector<std::int16_t> tone = sine(200.0, 11025, 1.0);
    for (int b = 0; b < 5; ++b) {
        QCOMPARE(view.f0Readout(), 0.0f);
        view.DrawLiveBlock(std::span<const std::int16_t>(tone).subspan(static_cast<std::size_t>(b) * 1024, 1024));
    }
    QVERIFY(std::abs(view.f0Readout() - 200.0f) < 5.0f);
    // "F" 80 pixels left of the graph's right end and 20 above the time caption.
    const QRect box = view.layout()
                          .toWidget(QSizeF(view.size()))
                          .mapRect(QRect(view.layout().graphRight() - 80, CaptionTop(view.layout()) - 22, 110, 20));
    int navy = 0;
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x) {
            // Text is smoothed at its edges: a pixel counts when it is clearly bluer than the grey band behind it.
            const QColor c = view.savedGraph().pixelColor(x, y);
            navy += c.blue() > c.red() + 40 && c.blue() > c.green() + 40;
        }
    QVERIFY(navy > 20);
    view.ShowF0Readout(0.0f);
    view.RedrawF0(false);
    QCOMPARE(view.savedGraph(), view.backBitmap());
}

void ViewCurvesTest::workAsideKeepsTheEventLoopRunning() {
    std::atomic<bool> timerRan = false;
    QTimer::singleShot(0, [&] { timerRan = true; });
    bool sawTimer = false;
    RunKeepingWindowAlive([&] {
        // Only the window's own event loop can run the timer while this waits.
        for (int i = 0; i < 500 && !timerRan; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
        sawTimer = timerRan;
    });
    QVERIFY(sawTimer);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, RunKeepingWindowAlive([] { throw std::runtime_error("failed"); }));
}

QTEST_MAIN(ViewCurvesTest)
#include "ViewCurves_test.moc"
