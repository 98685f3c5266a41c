// A language chosen in the menu takes over menus, panels, the view's captions and the user guide at once and is
// kept in lang.dat; pictures of the main window on each page in each language are saved under the build tree,
// checked for cut text.
#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QTextBrowser>

#include "DataRoot.h"
#include "ProgramOnRoot.h"
#include "app/CAbrirSessao.h"
#include "app/CPaciente.h"
#include "app/HelpBrowser.h"
#include "app/MessageBoxPrompt.h"
#include "panels/CMyBarra.h"
#include "view/CAFView.h"
#include "view/ViewCommands.h"

namespace {

constexpr int kIdKorean = 32892;
constexpr int kIdVolume = 32843;  // a command of the Settings menu

// The program on a copy of the demo data, its window at 1024 x 768 showing a recording.
struct OpenRecording {
    DemoCopy root;
    ProgramOnRoot program{root.path()};
    CMainFrame& frame = program.frame();
    OpenRecording() { open(); }
    void open() {
        frame.showNormal();
        frame.resize(1024, 768);
        QVERIFY(QTest::qWaitForWindowExposed(&frame));
        frame.view()->setScreenSize(QSize(1024, 768));
        frame.view()->setCurrentClient(ClientFolder{root.path(), 1}, "Maria Helena Costa");
        emit frame.recordingChosen(1, FileKind::WvWithoutDate);
    }
};

// The view's own painting, without the panels on it.
QImage viewPainting(QWidget* view) {
    QImage image(view->size(), QImage::Format_ARGB32);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    return image;
}

// Every visible button and label shows its whole text in the room it has.
void checkEveryTextFits(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QString text = button ? button->text() : label ? label->text() : QString();
        if (widget->isVisible() && !text.isEmpty())
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(text));
    }
}

void saveScreenshot(QWidget& window, const QString& name) {
    const QString folder = QStringLiteral(SONALYS_SCREENSHOT_DIR);
    QDir().mkpath(folder);
    QVERIFY(window.grab().save(folder + QString("/%1.png").arg(name)));
}

}  // namespace

class LanguageSwitchTest : public QObject {
    Q_OBJECT
private slots:
    void switchShowsTheLanguageAtOnce_data();
    void switchShowsTheLanguageAtOnce();
    void helpOpensInTheLanguage();
    void clientFormAndRecordingListInEachLanguage_data();
    void clientFormAndRecordingListInEachLanguage();
};

void LanguageSwitchTest::switchShowsTheLanguageAtOnce_data() {
    QTest::addColumn<int>("command");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<int>("number");  // the language's number in lang.dat
    QTest::addColumn<QString>("colors");
    QTest::newRow("en") << 32891 << "&Settings" << 0 << "Colors";  // back from Korean
    QTest::newRow("es") << 32893 << "&Configuración" << 1 << "Color";
    QTest::newRow("ko") << 32892 << "설정(&S)" << 2 << "색상";
    QTest::newRow("pt") << 32894 << "&Configurações" << 3 << "Cores";
}

void LanguageSwitchTest::switchShowsTheLanguageAtOnce() {
    QFETCH(int, command);
    QFETCH(QString, settings);
    QFETCH(int, number);
    QFETCH(QString, colors);
    OpenRecording window;
    CMainFrame& frame = window.frame;
    if (number == 0) frame.command(kIdKorean)->trigger();
    const QImage before = viewPainting(frame.view());
    frame.command(command)->trigger();
    frame.UpdateCommands();
    QCOMPARE(qobject_cast<QMenu*>(frame.command(kIdVolume)->associatedObjects().front())->title(), settings);
    const auto* colorsButton = frame.view()->spectrogramPanel()->findChild<QAbstractButton*>("control1030");
    QCOMPARE(colorsButton->text(), colors);
    QVERIFY(viewPainting(frame.view()) != before);
    for (const int id : {32891, 32892, 32893, 32894}) QCOMPARE(frame.command(id)->isChecked(), id == command);
    QCOMPARE(ReadSettingInts(window.root / kLanguageFile, 1), std::vector<std::int32_t>{number});

    // Both pages, each pictured and every button and label showing its whole text in the room it has.
    for (const QString page : {"spectrogram", "spectrum"}) {
        if (page == "spectrum") frame.view()->action(kIdShowSpectrum)->trigger();
        // The menu bar lays its new titles out from posted layout requests: run them before the picture.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QCoreApplication::processEvents();
        saveScreenshot(frame, QString("main-window-%1-%2").arg(QTest::currentDataTag(), page));
        checkEveryTextFits(frame);
    }
}

// The guide opens in the language in force, and an open guide follows a later switch back to English.
void LanguageSwitchTest::helpOpensInTheLanguage() {
    const struct {
        int command;
        const char *language, *title;
    } rows[] = {{32893, "es", "Guía del usuario de Sonalys"},
                {32892, "ko", "Sonalys 사용 설명서"},
                {32894, "pt", "Guia do usuário do Sonalys"}};
    DemoCopy root;
    ProgramOnRoot program{root.path()};
    CMainFrame& frame = program.frame();
    for (const auto& row : rows) {
        frame.command(row.command)->trigger();
        frame.command(kIdContents)->trigger();
        auto* help = frame.findChild<HelpBrowser*>();
        QVERIFY(help != nullptr);
        saveScreenshot(*help, QString("help-") + row.language);
        QCOMPARE(help->browser()->source(), QUrl(QString("qrc:/help/%1/index.html").arg(row.language)));
        QCOMPARE(help->browser()->documentTitle(), QString::fromUtf8(row.title));
        frame.command(32891)->trigger();
        QCOMPARE(help->browser()->documentTitle(), QString("Sonalys user guide"));
    }
}

void LanguageSwitchTest::clientFormAndRecordingListInEachLanguage_data() {
    QTest::addColumn<int>("command");
    QTest::newRow("en") << 32891;
    QTest::newRow("es") << 32893;
    QTest::newRow("ko") << 32892;
    QTest::newRow("pt") << 32894;
}

void LanguageSwitchTest::clientFormAndRecordingListInEachLanguage() {
    QFETCH(int, command);
    DemoCopy root;
    ProgramOnRoot program{root.path()};
    program.frame().command(command)->trigger();
    const LanguageId language = program.frame().languageId();
    MessageBoxPrompt prompt;  // the screen's own, which looks the list's row template up in the language
    CPacienteTable table(root.path(), prompt);
    table.SetFileName(std::string(kClientTableName));
    PacienteRecord current;
    const PacienteRecord client = tableRecords(root.path()).at(0);
    CPaciente form(CPaciente::EditMode, client, table, current, root.path(), language, prompt);
    CAbrirSessao list(client, root.path(), language, prompt);
    for (QDialog* dialog : {static_cast<QDialog*>(&form), static_cast<QDialog*>(&list)}) {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        checkEveryTextFits(*dialog);
    }
    saveScreenshot(form, QString("client-form-") + QTest::currentDataTag());
    saveScreenshot(list, QString("recording-list-") + QTest::currentDataTag());
}

QTEST_MAIN(LanguageSwitchTest)
#include "LanguageSwitch_test.moc"
