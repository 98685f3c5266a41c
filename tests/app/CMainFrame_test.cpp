#include "app/CMainFrame.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTest>

#include "DataRoot.h"
#include "FakeVolume.h"
#include "ModalDriver.h"
#include "ProgramOnRoot.h"
#include "app/CAbrirPaciente.h"
#include "app/CAbrirSessao.h"
#include "app/CPaciente.h"
#include "controls/ReportList.h"
#include "controls/VolumeSlider.h"
#include "view/CAFView.h"

namespace fs = std::filesystem;

namespace {

constexpr int kOpenClient = 32812, kPersonalInformation = 32817, kDeleteClient = 1040, kOpenRecording = 32784;

std::vector<std::pair<std::string, std::string>> tableRows(const fs::path& root) {
    std::vector<std::pair<std::string, std::string>> rows;
    for (const PacienteRecord& row : tableRecords(root))
        rows.emplace_back(std::to_string(row.Codigo), recordText(row.Nome));
    return rows;
}

bool enabled(CMainFrame& frame, int id) {
    frame.UpdateCommands();
    return frame.command(id)->isEnabled();
}

// Answers the client list by choosing the row whose name is `name`, then pressing `buttonName`.
void inClientList(const QString& name, const char* buttonName, std::function<void()> next = {}) {
    ModalDriver::whenModal([=](QWidget* modal) {
        auto* list = qobject_cast<CAbrirPaciente*>(modal);
        for (int row = 0; row < list->list()->rowCount(); ++row) {
            if (list->list()->cellText(row, 1) == name) list->list()->selectRow(row);
        }
        if (next) next();
        list->findChild<QPushButton*>(buttonName)->click();
    });
}

// Answers the client form with the name typed anew and a type.
void inClientForm(const QString& name, const char* type) {
    ModalDriver::whenModal([=](QWidget* modal) {
        auto* form = qobject_cast<CPaciente*>(modal);
        auto* nameBox = form->findChild<QLineEdit*>("name");
        nameBox->selectAll();
        QTest::keyClicks(nameBox, name);
        form->findChild<QRadioButton*>(type)->setChecked(true);
        form->findChild<QPushButton*>("ok")->click();
    });
}

}  // namespace

class CMainFrameTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void aClientOpensOnlyWithItsFolderAndItsRecordingGoesToTheView();
    void openCreateEditAndDeleteAClientOnTheDemoRoot();
    void otherFilesWorksWithoutAClientAndGoesWhenDeleted();
    void anUnknownTypeKeepsTheRange();
    void theMixerStartsUnderAWaitBoxAndDrivesTheSlidersBesideTheGraph();
};

void CMainFrameTest::aClientOpensOnlyWithItsFolderAndItsRecordingGoesToTheView() {
    DemoCopy root;
    ProgramOnRoot program(root.path());
    CMainFrame& frame = program.frame();
    fs::remove_all(root / "pac002");
    inClientList("Joao Pedro Almeida", "open");
    frame.command(kOpenClient)->trigger();
    QCOMPARE(program.prompt.shown, std::vector<std::string>{"Error Acessing Client´s folder !"});
    QVERIFY(frame.CurrentClient.Codigo == -1 && !enabled(frame, kOpenRecording));
    // One whose folder is there opens, and a recording chosen from its list goes to the view.
    inClientList("Maria Helena Costa", "open");
    frame.command(kOpenClient)->trigger();
    ModalDriver::whenModal([](QWidget* modal) {
        auto* list = qobject_cast<CAbrirSessao*>(modal);
        for (int row = 0; row < list->list()->rowCount(); ++row) {
            if (list->list()->cellText(row, 0).endsWith("File 2")) list->list()->selectRow(row);
        }
        list->open();
    });
    frame.command(kOpenRecording)->trigger();
    // The view shows it, and the window's title names the client and the recording.
    QCOMPARE(frame.view()->displayMode(), DisplayMode::FileSpectrogramMode);
    QCOMPARE(frame.view()->loadedRecording().RecordingNumber, 2);
    QCOMPARE(frame.windowTitle(), QString("Maria Helena Costa  File - 2 - Sonalys"));
    QVERIFY(!frame.view()->masterSlider()->isHidden() && !frame.view()->inputSlider()->isHidden());
}

void CMainFrameTest::openCreateEditAndDeleteAClientOnTheDemoRoot() {
    DemoCopy root;
    const auto demoRows = tableRows(root.path());
    ProgramOnRoot program(root.path());
    CMainFrame& frame = program.frame();
    // Open: the demo's second client; its type sets the F0 range.
    inClientList("Joao Pedro Almeida", "open");
    frame.command(kOpenClient)->trigger();
    QCOMPARE(frame.windowTitle(), QString("Joao Pedro Almeida - Sonalys"));
    QCOMPARE(frame.f0Range, (F0Range{70, 400}));
    // Create from the list's New Client button: the lowest free code, its folder, and it becomes the client.
    inClientList(QString(), "newClient", [] { inClientForm("Lucia Ferreira", "woman"); });
    frame.command(kOpenClient)->trigger();
    QVERIFY2(program.prompt.shown.empty(), program.prompt.last().c_str());
    QCOMPARE(tableRows(root.path()).back(), (std::pair<std::string, std::string>{"3", "Lucia Ferreira"}));
    QVERIFY(fs::is_directory(root / "pac003"));
    QCOMPARE(frame.windowTitle(), QString("Lucia Ferreira - Sonalys"));
    QCOMPARE(frame.f0Range, (F0Range{120, 400}));
    // Edit from the menu: the new client becomes a singer with another name.
    inClientForm("Lucia F. Souza", "singer");
    frame.command(kPersonalInformation)->trigger();
    QCOMPARE(tableRows(root.path()).back(), (std::pair<std::string, std::string>{"3", "Lucia F. Souza"}));
    QCOMPARE(frame.windowTitle(), QString("Lucia F. Souza - Sonalys"));
    QCOMPARE(frame.f0Range, (F0Range{100, 1000}));
    // Delete from the menu, whose list of files has *.dat: the folder and the row go, the demo's clients stay.
    root.write("pac003/wv001.wav", "RIFF");
    root.write("pac003/wv001.dat", "x");
    program.prompt.answers = {true};
    frame.command(kDeleteClient)->trigger();
    QCOMPARE(program.prompt.shown, std::vector<std::string>{std::string(kConfirmDeleteClient)});
    QVERIFY(!fs::exists(root / "pac003"));
    QCOMPARE(tableRows(root.path()), demoRows);
    QCOMPARE(frame.windowTitle(), QString("Sonalys"));
    QVERIFY(!enabled(frame, kPersonalInformation) && !enabled(frame, kOpenRecording));
}

void CMainFrameTest::otherFilesWorksWithoutAClientAndGoesWhenDeleted() {
    DemoCopy root;
    fs::remove_all(root / "Other Files");
    ProgramOnRoot program(root.path());
    CMainFrame& frame = program.frame();
    const auto demoRows = tableRows(root.path());
    inClientList(QString(), "otherFiles");
    frame.command(kOpenClient)->trigger();
    QVERIFY(fs::is_directory(root / "Other Files"));
    QCOMPARE(frame.CurrentClient.Codigo, 99999);
    QCOMPARE(frame.windowTitle(), QString("default - Sonalys"));
    QCOMPARE(frame.f0Range, (F0Range{70, 1000}));
    root.write("Other Files/voice.wav", "RIFF");
    // Deleting in Other Files empties and removes the folder, and leaves the client table alone.
    program.prompt.answers = {true};
    frame.command(kDeleteClient)->trigger();
    QVERIFY(!fs::exists(root / "Other Files"));
    QCOMPARE(tableRows(root.path()), demoRows);
}

void CMainFrameTest::anUnknownTypeKeepsTheRange() {
    DataRoot root({{1, "Ana", 1}, {2, "Odd", 7}});
    ProgramOnRoot program(root.path());
    CMainFrame& frame = program.frame();
    inClientList("Ana", "open");
    frame.command(kOpenClient)->trigger();
    QCOMPARE(frame.f0Range, (F0Range{120, 400}));
    inClientList("Odd", "open");
    frame.command(kOpenClient)->trigger();
    QCOMPARE(program.prompt.shown, std::vector<std::string>{"Undefined Type!"});
    QCOMPARE(frame.f0Range, (F0Range{120, 400}));
    QCOMPARE(frame.CurrentClient.Codigo, 2);
}

void CMainFrameTest::theMixerStartsUnderAWaitBoxAndDrivesTheSlidersBesideTheGraph() {
    const auto waitBoxShown = [] {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            const auto* text = window->findChild<QLabel*>();
            if (window->isVisible() && text != nullptr && text->text() == "Wait, starting audio devices...")
                return true;
        }
        return false;
    };
    TempDir root;
    ScriptedMixer lines(true, {1});  // a card with a line input alone
    std::vector<bool> shownWhileMade;
    ProgramOnRoot program(root.path(), [&](MixerLine line, int input) {
        shownWhileMade.push_back(waitBoxShown());
        program.prompt.whenShown = [&] { shownWhileMade.push_back(waitBoxShown()); };
        return lines.factory()(line, input);
    });
    // The box stands while the master and input lines are made, and is gone when the microphone is asked about.
    QCOMPARE(shownWhileMade, (std::vector<bool>{true, true, false}));
    QCOMPARE(program.prompt.shown, std::vector<std::string>{"Mic. Input can´t be found!\nDo You want to Continue?"});
    QVERIFY(!waitBoxShown());
    CAFView& view = *program.frame().view();
    QVERIFY(view.masterSlider()->isHidden());  // the empty view has no graph to stand beside
    QVERIFY(view.masterSlider()->isEnabled() && !view.inputSlider()->isEnabled());
    view.masterSlider()->setValue(70 - 35);
    QCOMPARE(lines.master->writes.back(), (std::vector<int>{35, 35}));
}

QTEST_MAIN(CMainFrameTest)
#include "CMainFrame_test.moc"
