// Pictures of both pages with a loaded speech recording, zoomed, with a read-out box up, at three screen sizes,
// written under the build tree for people to look at.
#include <QDir>
#include <QMenu>
#include <QTest>

#include "ViewFixtures.h"

class ScreenshotsTest : public QObject {
    Q_OBJECT
private slots:
    void bothPagesZoomedWithAReadOut_data();
    void bothPagesZoomedWithAReadOut();
};

void ScreenshotsTest::bothPagesZoomedWithAReadOut_data() {
    QTest::addColumn<QSize>("screen");
    for (const QSize screen : {QSize(800, 600), QSize(1024, 768), QSize(1920, 1080)})
        QTest::newRow(qPrintable(QString("%1x%2").arg(screen.width()).arg(screen.height()))) << screen;
}

void ScreenshotsTest::bothPagesZoomedWithAReadOut() {
    QFETCH(QSize, screen);
    const QString folder = QDir::current().filePath("screenshots");
    QDir().mkpath(folder);
    const auto save = [&](CAFView& view, const char* page) {
        QVERIFY(view.grab().save(QString("%1/%2-%3.png").arg(folder, page, QTest::currentDataTag())));
    };
    ClientRoot client;
    client.copyDemo("pac001/wv001.wav", "wv001.wav");
    FakePrompt prompt;
    CAFView view(prompt);
    showForScreen(view, screen);
    view.setCurrentClient(client.folder, "Demo client");
    QCOMPARE(view.OpenRecording(0, 1), 1);
    const ViewLayout& layout = view.layout();
    dragInStrip(view, layout.GraphLeft + layout.GraphWidth / 4, layout.GraphLeft + layout.GraphWidth * 3 / 5);
    save(view, "spectrogram-selection");
    view.contextMenu()->hide();
    view.Zoom();
    const QPoint graphPoint(layout.GraphLeft + layout.GraphWidth * 3 / 10, layout.GraphTop + 200);
    hoverAt(view, graphPoint);
    save(view, "spectrogram-zoomed");
    view.ShowSpectrumPage();
    hoverAt(view, graphPoint + QPoint(1, 0));
    save(view, "spectrum-zoomed");
    QVERIFY(prompt.shown.empty());
}

QTEST_MAIN(ScreenshotsTest)
#include "Screenshots_test.moc"
