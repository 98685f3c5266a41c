#include "app/CAbrirPaciente.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "DataRoot.h"
#include "ProgramOnRoot.h"
#include "app/CPaciente.h"
#include "controls/ReportList.h"

namespace {

std::vector<ClientSpec> numberedClients(int count) {
    std::vector<ClientSpec> clients;
    for (int code = 1; code <= count; ++code) clients.push_back({code, "Client " + std::to_string(code)});
    return clients;
}

QStringList column(const ReportList* list, int column) {
    QStringList cells;
    for (int row = 0; row < list->rowCount(); ++row) cells << list->cellText(row, column);
    return cells;
}

QPushButton* button(const QDialog& dialog, const char* name) { return dialog.findChild<QPushButton*>(name); }

// The client list of the program started on a data root holding `clients`.
struct ListOnRoot {
    DataRoot root;
    ProgramOnRoot program;
    CAbrirPaciente dialog;
    explicit ListOnRoot(const std::vector<ClientSpec>& clients, LanguageId language = LanguageId::English)
        : root(clients), program(root.path(), language), dialog(program.frame()) {}
};

}  // namespace

class CAbrirPacienteTest : public QObject {
    Q_OBJECT
private slots:
    void rowsShowCodeAndNameInTableOrder();
    void nameColumnNarrowsFromElevenClients();
    void searchFindsTheFirstNameBeginningWithTheText();
    void clientCommandsFollowTheChoice();
    void deleteRemovesTheFilesTheFolderAndOnlyThatRow();
    void deletingAClientGoneMeanwhileTouchesNothing();
};

void CAbrirPacienteTest::rowsShowCodeAndNameInTableOrder() {
    ListOnRoot on({{12, "Zeca"}, {3, "Ana"}, {1000, "Bruno"}});
    QCOMPARE(on.dialog.windowTitle(), QString("Select a Client"));
    QCOMPARE(column(on.dialog.list(), 0), QStringList({"012", "003", "1000"}));
    QCOMPARE(column(on.dialog.list(), 1), QStringList({"Zeca", "Ana", "Bruno"}));
}

void CAbrirPacienteTest::nameColumnNarrowsFromElevenClients() {
    for (const auto& [count, language, width] :
         {std::tuple{10, LanguageId::English, 170}, std::tuple{11, LanguageId::English, 153},
          std::tuple{0, LanguageId::Korean, 211}, std::tuple{11, LanguageId::Korean, 153}}) {
        ListOnRoot on(numberedClients(count), language);
        QCOMPARE(on.dialog.list()->header()->sectionSize(0), 60);
        QCOMPARE(on.dialog.list()->header()->sectionSize(1), width);
    }
}

void CAbrirPacienteTest::searchFindsTheFirstNameBeginningWithTheText() {
    ListOnRoot on({{1, "Joana"}, {2, "Mariana"}, {3, "ANTONIO"}, {4, "Ana"}});
    auto& [root, program, dialog] = on;
    auto* search = dialog.findChild<QLineEdit*>("search");
    QTest::keyClicks(search, "an");
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(dialog.list()->selectedRow(), 2);  // ANTONIO: the first from the top, not Joana nor Mariana
    search->setText("ana");
    button(dialog, "searchButton")->click();
    QCOMPARE(dialog.list()->selectedRow(), 3);
    QVERIFY(program.prompt.shown.empty());
    search->setText("xu");
    button(dialog, "searchButton")->click();
    QCOMPARE(program.prompt.last(), std::string("Client not found!"));
    QCOMPARE(dialog.list()->selectedRow(), 3);
    search->clear();
    button(dialog, "searchButton")->click();
    QCOMPARE(program.prompt.last(), std::string("Type the Client´s name you want to search!"));
    QCOMPARE(dialog.focusWidget(), search);
}

void CAbrirPacienteTest::clientCommandsFollowTheChoice() {
    ListOnRoot on({{1, "Ana"}});
    auto& [root, program, dialog] = on;
    const auto enabled = [&](const char* name) { return button(dialog, name)->isEnabled(); };
    QVERIFY(!enabled("open") && !enabled("personalInformation") && !enabled("deleteClient"));
    QVERIFY(enabled("newClient") && enabled("otherFiles") && enabled("close"));
    dialog.list()->selectRow(0);
    QVERIFY(enabled("open") && enabled("personalInformation") && enabled("deleteClient"));
    dialog.list()->selectRow(-1);
    // Without a choice the commands that need one say so.
    dialog.personalInformation();
    dialog.deleteClient();
    QCOMPARE(program.prompt.shown, std::vector<std::string>(2, "You need to select a Item!"));
    dialog.open();
    QCOMPARE(dialog.result(), 0);
}

void CAbrirPacienteTest::deleteRemovesTheFilesTheFolderAndOnlyThatRow() {
    ListOnRoot on({{1, "Ana"}, {2, "Bia"}, {3, "Caio"}});
    auto& [root, program, dialog] = on;
    for (const char* name : {"wv001.wav", "wv001.ddt", "wv001.txt", "wv001.mrk", "qv002.wav", "report.rtf", "a.f0"})
        root.write(std::string("pac002/") + name, "x");
    root.write("pac001/wv001.wav", "keep");
    dialog.list()->selectRow(1);
    program.prompt.answers = {false};
    dialog.deleteClient();
    QCOMPARE(program.prompt.last(), std::string(kConfirmDeleteClient));
    QVERIFY(std::filesystem::exists(root / "pac002/qv002.wav"));
    QCOMPARE(tableNames(root.path()).size(), std::size_t(3));

    program.prompt.answers = {true};
    dialog.deleteClient();
    QVERIFY(!std::filesystem::exists(root / "pac002"));
    QVERIFY(std::filesystem::exists(root / "pac001/wv001.wav"));
    QCOMPARE(tableNames(root.path()), (std::vector<std::string>{"Ana", "Caio"}));
    QCOMPARE(column(dialog.list(), 1), QStringList({"Ana", "Caio"}));

    // A file the deletion does not know keeps the folder; the client goes from the table all the same.
    root.write("pac003/wv001.bkp", "");
    dialog.list()->selectRow(1);
    dialog.deleteClient();
    QCOMPARE(program.prompt.last(), std::string("Client´s folder can´t be deleted!"));
    QVERIFY(std::filesystem::exists(root / "pac003/wv001.bkp"));
    QCOMPARE(tableNames(root.path()), std::vector<std::string>{"Ana"});
}

void CAbrirPacienteTest::deletingAClientGoneMeanwhileTouchesNothing() {
    ListOnRoot on({{1, "Ana"}, {2, "Bia"}});
    on.root.write("pac002/wv001.wav", "x");
    on.dialog.list()->selectRow(1);
    {  // another copy of the program deletes Bia while the list is open
        FakePrompt other;
        CPacienteTable table(on.root.path(), other);
        table.DeleteClient(table.LoadClients("CODIGO=2"));
    }
    on.dialog.deleteClient();
    QCOMPARE(on.program.prompt.last(), std::string(kClientNoLongerInTable));
    QCOMPARE(tableNames(on.root.path()), std::vector<std::string>{"Ana"});  // the last row was not taken in Bia's place
    QVERIFY(std::filesystem::exists(on.root / "pac002/wv001.wav"));
}

QTEST_MAIN(CAbrirPacienteTest)
#include "CAbrirPaciente_test.moc"
