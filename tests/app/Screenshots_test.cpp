// Pictures of the main window with a recording, at two screen sizes, saved under the build tree for a person to
// look at. Each is checked for the one fault a machine can see: text cut by its box.
#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QTest>

#include "ProgramOnRoot.h"
#include "view/CAFView.h"

class ScreenshotsTest : public QObject {
    Q_OBJECT
private slots:
    void mainWindowWithARecording_data();
    void mainWindowWithARecording();
};

void ScreenshotsTest::mainWindowWithARecording_data() {
    QTest::addColumn<QSize>("screen");
    QTest::newRow("1024x768") << QSize(1024, 768);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
}

void ScreenshotsTest::mainWindowWithARecording() {
    QFETCH(QSize, screen);
    DemoCopy root;
    ProgramOnRoot program(root.path());
    CMainFrame& frame = program.frame();
    frame.showNormal();
    frame.resize(screen);
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    frame.view()->setScreenSize(screen);
    frame.view()->setCurrentClient(ClientFolder{root.path(), 1}, "Maria Helena Costa");
    emit frame.recordingChosen(1, FileKind::WvWithoutDate);
    // Every button and label shows its whole text in the room it has.
    for (const QWidget* widget : frame.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QString text = button ? button->text() : label ? label->text() : QString();
        if (widget->isVisible() && !text.isEmpty())
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(text));
    }
    const QString folder = QStringLiteral(SONALYS_SCREENSHOT_DIR);
    QDir().mkpath(folder);
    QVERIFY(frame.grab().save(folder +
                              QString("/main-window-recording-%1x%2.png").arg(screen.width()).arg(screen.height())));
}

QTEST_MAIN(ScreenshotsTest)
#include "Screenshots_test.moc"
