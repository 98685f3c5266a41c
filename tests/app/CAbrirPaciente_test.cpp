#include "app/CAbrirPaciente.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "DataRoot.h"
#include "ProgramOnRoot.h"
#include "controls/ReportList.h"

namespace {

QPushButton* button(const QDialog& dialog, const char* name) { return dialog.findChild<QPushButton*>(name); }

// The client list of the program started on a data root holding `clients`.
struct ListOnRoot {
    DataRoot root;
    ProgramOnRoot program;
    CAbrirPaciente dialog;
    explicit ListOnRoot(const std::vector<ClientSpec>& clients)
        : root(clients), program(root.path()), dialog(program.frame()) {}
};

}  // namespace

class CAbrirPacienteTest : public QObject {
    Q_OBJECT
private slots:
    void withoutAChoiceCommandsSaySoAndSearchFindsTheFirstNameBeginningWithTheText();
    void deleteAsksFirstAndAnUnknownFileKeepsTheFolder();
};

void CAbrirPacienteTest::withoutAChoiceCommandsSaySoAndSearchFindsTheFirstNameBeginningWithTheText() {
    ListOnRoot on({{1, "Joana"}, {2, "Mariana"}, {3, "ANTONIO"}, {4, "Ana"}});
    auto& [root, program, dialog] = on;
    QCOMPARE(dialog.windowTitle(), QString("Select a Client"));
    // Without a choice the commands that need one say so.
    dialog.personalInformation();
    dialog.deleteClient();
    QCOMPARE(program.prompt.shown, std::vector<std::string>(2, "You need to select a Item!"));
    auto* search = dialog.findChild<QLineEdit*>("search");
    QTest::keyClicks(search, "an");
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(dialog.list()->selectedRow(), 2);  // ANTONIO: the first from the top, not Joana nor Mariana
    search->setText("xu");
    button(dialog, "searchButton")->click();
    QCOMPARE(program.prompt.last(), std::string("Client not found!"));
    QCOMPARE(dialog.list()->selectedRow(), 2);
    search->clear();
    button(dialog, "searchButton")->click();
    QCOMPARE(program.prompt.last(), std::string("Type the Client´s name you want to search!"));
}

void CAbrirPacienteTest::deleteAsksFirstAndAnUnknownFileKeepsTheFolder() {
    ListOnRoot on({{1, "Ana"}, {2, "Bia"}});
    auto& [root, program, dialog] = on;
    root.write("pac002/wv001.wav", "x");
    root.write("pac002/wv001.bkp", "");
    dialog.list()->selectRow(1);
    program.prompt.answers = {false, true};
    dialog.deleteClient();
    QCOMPARE(program.prompt.last(), std::string(kConfirmDeleteClient));
    QCOMPARE(tableNames(root.path()).size(), std::size_t(2));
    // A file the deletion does not know keeps the folder; the client goes from the table all the same.
    dialog.deleteClient();
    QCOMPARE(program.prompt.last(), std::string("Client´s folder can´t be deleted!"));
    QVERIFY(std::filesystem::exists(root / "pac002/wv001.bkp"));
    QCOMPARE(tableNames(root.path()), std::vector<std::string>{"Ana"});
}

QTEST_MAIN(CAbrirPacienteTest)
#include "CAbrirPaciente_test.moc"
