// Pictures of both pages with a loaded speech recording, at three screen sizes, before and after a zoom and with a
// read-out box up, written under the build tree for people to look at. Each is also checked for what must be
// there: a picture with colour in the graph and a trace in the strip.
#include <QDir>
#include <QMenu>
#include <QTest>

#include "ViewFixtures.h"

class ScreenshotsTest : public QObject {
    Q_OBJECT
private slots:
    void bothPagesBeforeAndAfterAZoomWithAReadOut_data();
    void bothPagesBeforeAndAfterAZoomWithAReadOut();

private:
    void save(CAFView& view, const QString& name);
};

void ScreenshotsTest::save(CAFView& view, const QString& name) {
    const QString folder = QDir::current().filePath("screenshots");
    QDir().mkpath(folder);
    QVERIFY(view.grab().save(folder + "/" + name + ".png"));
}

void ScreenshotsTest::bothPagesBeforeAndAfterAZoomWithAReadOut_data() {
    QTest::addColumn<QSize>("screen");
    QTest::newRow("1024x768") << QSize(1024, 768);
    QTest::newRow("800x600") << QSize(800, 600);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
}

void ScreenshotsTest::bothPagesBeforeAndAfterAZoomWithAReadOut() {
    QFETCH(QSize, screen);
    const QString size = QString("%1x%2").arg(screen.width()).arg(screen.height());
    ClientRoot client;
    client.copyDemo("pac001/wv001.wav", "wv001.wav");
    FakePrompt prompt;
    CAFView view(prompt);
    showForScreen(view, screen);
    view.setCurrentClient(client.folder, "Demo client");
    QCOMPARE(view.OpenRecording(0, 1), 1);
    save(view, "spectrogram-" + size);

    const ViewLayout& layout = view.layout();
    const QPoint graphPoint(layout.GraphLeft + layout.GraphWidth * 3 / 10, layout.GraphTop + 200);
    hoverAt(view, graphPoint);
    QVERIFY(!view.readOutBox().isEmpty());
    save(view, "spectrogram-readout-" + size);

    dragInStrip(view, layout.GraphLeft + layout.GraphWidth / 4, layout.GraphLeft + layout.GraphWidth * 3 / 5);
    QVERIFY(view.hasSelection());
    save(view, "spectrogram-selection-" + size);
    view.contextMenu()->hide();
    view.Zoom();
    QVERIFY(view.zoomed());
    hoverAt(view, graphPoint - QPoint(1, 0));
    QVERIFY(!view.readOutBox().isEmpty());
    save(view, "spectrogram-zoomed-" + size);

    view.ShowSpectrumPage();
    QCOMPARE(view.displayMode(), DisplayMode::FileSpectrumMode);
    hoverAt(view, graphPoint + QPoint(1, 0));
    QVERIFY(!view.readOutBox().isEmpty());
    save(view, "spectrum-zoomed-" + size);
    view.Zoom();
    QVERIFY(!view.zoomed());
    hoverAt(view, graphPoint + QPoint(2, 0));
    QVERIFY(!view.readOutBox().isEmpty());
    save(view, "spectrum-" + size);
    QVERIFY(prompt.shown.empty());
}

QTEST_MAIN(ScreenshotsTest)
#include "Screenshots_test.moc"
