// Pictures of the spectrogram page of a speech recording with its F0 and formant curves, in the three colour
// schemes at two screen sizes with an F0 read-out up, written under the build tree for people to look at. Each is also
// checked for dots of the scheme's F0 colour over the picture.
#include <QDir>
#include <QTest>

#include "ViewFixtures.h"

class CurveScreenshotsTest : public QObject {
    Q_OBJECT
private slots:
    void spectrogramWithCurvesInEachScheme_data();
    void spectrogramWithCurvesInEachScheme();
};

void CurveScreenshotsTest::spectrogramWithCurvesInEachScheme_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("scheme");
    for (const QSize screen : {QSize(1024, 768), QSize(1920, 1080)})
        for (int scheme = 0; scheme < 3; ++scheme)
            QTest::addRow("%dx%d-scheme%d", screen.width(), screen.height(), scheme) << screen << scheme;
}

void CurveScreenshotsTest::spectrogramWithCurvesInEachScheme() {
    QFETCH(QSize, screen);
    QFETCH(int, scheme);
    ClientRoot client;
    client.copyDemo("pac001/wv001.wav", "wv001.wav");
    FakePrompt prompt;
    CAFView view(prompt);
    showForScreen(view, screen);
    view.setCurrentClient(client.folder, "Demo client");
    view.spectrogramSettings().colourScheme = scheme;
    QCOMPARE(view.OpenRecording(0, 1), 1);
    view.RedrawF0(true);
    view.RedrawFormants(true);
    view.ShowF0Readout(123.45f);  // as a play shows it
    const QImage shot = view.grab().toImage();
    const QRgb f0 = F0DotColour(scheme).rgb();
    int dots = 0;
    const QRect area = view.pictureDeviceRect();
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) dots += shot.pixel(x, y) == f0;
    QVERIFY(dots > 100);
    const QString folder = QDir::current().filePath("screenshots");
    QDir().mkpath(folder);
    QVERIFY(shot.save(
        QString("%1/curves-%2x%3-scheme%4.png").arg(folder).arg(screen.width()).arg(screen.height()).arg(scheme)));
    QVERIFY(prompt.shown.empty());
}

QTEST_MAIN(CurveScreenshotsTest)
#include "CurveScreenshots_test.moc"
