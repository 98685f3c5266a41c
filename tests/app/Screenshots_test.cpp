// Pictures of the main window and of the client and recording dialogs, at several screen sizes, saved under
// the build tree for a person to look at. Each picture is checked for the one fault a machine can see: a
// dialog that does not fit on the screen, or text cut by its box.
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "ProgramOnRoot.h"
#include "TempDir.h"
#include "app/CAboutDlg.h"
#include "app/CAbrirPaciente.h"
#include "app/CAbrirSessao.h"
#include "app/CPaciente.h"
#include "clients/CPacienteTable.h"
#include "controls/ReportList.h"
#include "view/CAFView.h"

namespace fs = std::filesystem;

namespace {

// Every button and label shows its whole text in the room it has.
void verifyTextsFit(QWidget* window) {
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QString text = button ? button->text() : label ? label->text() : QString();
        if (widget->isVisible() && !text.isEmpty())
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(text));
    }
}

}  // namespace

class ScreenshotsTest : public QObject {
    Q_OBJECT
private slots:
    void mainWindowAndDialogs_data();
    void mainWindowAndDialogs();
};

void ScreenshotsTest::mainWindowAndDialogs_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("size");  // of the window
    QTest::newRow("800x600") << QSize(800, 600) << QSize(800, 600);
    QTest::newRow("1024x768") << QSize(1024, 768) << QSize(1024, 768);
    QTest::newRow("1200x500") << QSize(1920, 1080) << QSize(1200, 500);
    QTest::newRow("1920x1080") << QSize(1920, 1080) << QSize(1920, 1080);
}

void ScreenshotsTest::mainWindowAndDialogs() {
    QFETCH(QSize, screen);
    QFETCH(QSize, size);
    DemoCopy root;
    ProgramOnRoot program(root.path());
    CMainFrame& frame = program.frame();
    frame.showNormal();
    frame.resize(size);
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    const QString suffix = QString("-%1x%2.png").arg(size.width()).arg(size.height());
    const QString folder = QStringLiteral(SONALYS_SCREENSHOT_DIR);
    QDir().mkpath(folder);
    QVERIFY(frame.grab().save(folder + "/main-window" + suffix));
    // Each dialog: its texts whole, itself on the screen.
    const auto shoot = [&](QDialog& dialog, const char* name) {
        dialog.show();
        verifyTextsFit(&dialog);
        QVERIFY(dialog.width() <= screen.width() && dialog.height() <= screen.height());
        QVERIFY(dialog.grab().save(folder + "/" + name + suffix));
        dialog.close();
    };
    CAbrirPaciente clients(frame);
    clients.list()->selectRow(0);
    shoot(clients, "client-list");
    CPacienteTable& table = frame.table();
    table.LoadClients("CODIGO=1");
    frame.CurrentClient = table.EntryAt(0)->record;
    CPaciente form(CPaciente::EditMode, frame.CurrentClient, table, frame.CurrentClient, root.path(),
                   LanguageId::English, program.prompt, &frame);
    shoot(form, "client-form");
    CAboutDlg about(true, &frame);
    shoot(about, "about");
    CAbrirSessao recordings(frame.CurrentClient, root.path(), LanguageId::English, program.prompt, false, &frame);
    recordings.list()->selectRow(0);
    shoot(recordings, "recording-list");

    // A recording chosen from the list, on the window's view, laid out for a screen of this size.
    frame.view()->setScreenSize(screen);
    frame.view()->setCurrentClient(ClientFolder{root.path(), 1}, "Maria Helena Costa");
    emit frame.recordingChosen(1, FileKind::WvWithoutDate);
    QVERIFY(frame.grab().save(folder + "/main-window-recording" + suffix));
}

QTEST_MAIN(ScreenshotsTest)
#include "Screenshots_test.moc"
