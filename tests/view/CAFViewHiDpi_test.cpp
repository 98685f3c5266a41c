// The main view on a screen of two device pixels per pixel: the off-screen images and the picture are made at the
// device's resolution, while selections still count in the page's own pixels.
#include <QApplication>
#include <QMenu>

#include "ViewFixtures.h"

class CAFViewHiDpiTest : public QObject {
    Q_OBJECT
private slots:
    void imagesAreAtDeviceResolutionAndSelectionsInPagePixels();
};

void CAFViewHiDpiTest::imagesAreAtDeviceResolutionAndSelectionsInPagePixels() {
    FakePrompt prompt;
    ClientRoot client;
    client.copyDemo("pac001/wv001.wav", "wv001.wav");
    CAFView view(prompt);
    showForScreen(view, {1024, 768});
    QCOMPARE(view.devicePixelRatioF(), 2.0);
    view.setCurrentClient(client.folder, "Ana Silva");
    QCOMPARE(view.OpenRecording(0, 1), 1);
    QCOMPARE(view.backBitmap().size(), QSize(2048, 1332));
    QCOMPARE(view.savedGraph().devicePixelRatio(), 2.0);
    QCOMPARE(view.picture().size(), QSize(1600, 666));  // one column per device pixel: twice the page's 800
    QCOMPARE(view.picture().columnsDone(), 1600);

    const ViewLayout& layout = view.layout();
    dragInStrip(view, layout.GraphLeft + 100, layout.GraphLeft + 300);
    view.contextMenu()->hide();
    QCOMPARE(view.selStartX(), layout.GraphLeft + 100);
    QCOMPARE(view.selEndX(), layout.GraphLeft + 300);
}

int main(int argc, char** argv) {
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    CAFViewHiDpiTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CAFViewHiDpi_test.moc"
