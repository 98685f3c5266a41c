#include "app/CPaciente.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "DataRoot.h"
#include "FakePrompt.h"

Q_DECLARE_METATYPE(LanguageId)

namespace {

struct Form {
    DataRoot own;  // the data root, unless the test gives one
    DataRoot& root;
    FakePrompt prompt;
    CPacienteTable table{root.path(), prompt};
    PacienteRecord current;
    std::unique_ptr<CPaciente> dialog;

    Form(DataRoot& dataRoot, CPaciente::Mode mode, const PacienteRecord& record,
         LanguageId language = LanguageId::English)
        : root(dataRoot) {
        table.SetFileName(std::string(kClientTableName));
        dialog = std::make_unique<CPaciente>(mode, record, table, current, root.path(), language, prompt);
        dialog->show();
    }
    explicit Form(LanguageId language = LanguageId::English)
        : Form(own, CPaciente::InsertMode, makeRecord({1, ""}), language) {}
    QLineEdit* box(const char* name) const { return dialog->findChild<QLineEdit*>(name); }
    void check(const char* type) const { dialog->findChild<QRadioButton*>(type)->setChecked(true); }
    // Types into whichever box has the focus, one key at a time, as a person does.
    void type(const QString& keys) const {
        for (const QChar key : keys) QTest::keyClicks(dialog->focusWidget(), QString(key));
    }
    void typeInto(const char* name, const QString& keys) const {
        box(name)->setFocus();
        type(keys);
    }
    void ok() const { dialog->findChild<QPushButton*>("ok")->click(); }
};

}  // namespace

class CPacienteTest : public QObject {
    Q_OBJECT
private slots:
    void birthDateIsTypedInTheLanguagesOrder_data();
    void birthDateIsTypedInTheLanguagesOrder();
    void theFormRefusesWhatItCannotStore();
    void anOldFolderIsReusedAfterAWordAndAClientGoneIsLeftAlone();
    void koreanIsStoredInCodePage949AndShownAgain();
};

void CPacienteTest::birthDateIsTypedInTheLanguagesOrder_data() {
    QTest::addColumn<LanguageId>("language");
    QTest::addColumn<QString>("firstBox");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("focusAfter");
    QTest::newRow("English: month, day, year")
        << LanguageId::English << "month" << QStringList{"03", "14", "1975"} << QStringList{"day", "year", "address"};
    QTest::newRow("Korean: year, month, day")
        << LanguageId::Korean << "year" << QStringList{"1975", "03", "14"} << QStringList{"month", "day", "address"};
    QTest::newRow("Spanish: day, month, year")
        << LanguageId::Spanish << "day" << QStringList{"14", "03", "1975"} << QStringList{"month", "year", "address"};
}

void CPacienteTest::birthDateIsTypedInTheLanguagesOrder() {
    QFETCH(LanguageId, language);
    QFETCH(QString, firstBox);
    QFETCH(QStringList, keys);
    QFETCH(QStringList, focusAfter);
    Form form(language);
    form.typeInto("name", "Ana Souza");
    form.check("woman");
    form.box(firstBox.toLatin1().constData())->setFocus();
    for (int i = 0; i < keys.size(); ++i) {
        form.type(keys[i]);
        QCOMPARE(form.dialog->focusWidget()->objectName(), focusAfter[i]);
    }
    form.ok();
    QVERIFY(form.prompt.shown.empty());
    // Whatever the order of entry, the table keeps month, day, year.
    QCOMPARE(std::string(recordText(tableRecords(form.root.path()).at(0).DataNasc)), std::string("03141975"));
}

void CPacienteTest::theFormRefusesWhatItCannotStore() {
    // Each row fills a fresh form and presses OK: the first message shown, or none and the client is stored.
    const char* yearDigits = "Invalid Year (it must have 4 digits)\nSample.: 1974";
    const char* yearRange = "Invalid Year \nRange: 1890 to 2050";
    const struct {
        const char *name, *type, *day, *month, *year, *message;
    } rows[] = {
        {"", "man", "", "", "", "You need to type the client´s name!"},
        {"Ana", "", "", "", "", "The Client is Man/Woman, Singer or Child?"},
        {"Ana", "child", "12", "05", "", yearDigits},
        {"Ana", "child", "12", "05", "197", yearDigits},
        {"Ana", "man", "00", "", "", "Invalid Day !"},
        {"Ana", "man", "32", "", "", "Invalid Day !"},
        {"Ana", "man", "", "13", "", "Invalid Month !"},
        {"Ana", "man", "", "", "1889", yearRange},
        {"Ana", "man", "", "", "2051", yearRange},
        {"Ana", "man", "31", "12", "1890", ""},
        {"Ana", "man", "a", "", "", ""},  // letters never reach a date box
    };
    for (const auto& row : rows) {
        Form form;
        form.typeInto("name", row.name);
        if (*row.type != '\0') form.check(row.type);
        form.typeInto("day", row.day);
        form.typeInto("month", row.month);
        form.typeInto("year", row.year);
        form.ok();
        QCOMPARE(form.prompt.shown.empty() ? std::string() : form.prompt.shown.front(), std::string(row.message));
        if (*row.message == '\0') QCOMPARE(tableNames(form.root.path()), std::vector<std::string>{"Ana"});
    }
}

void CPacienteTest::anOldFolderIsReusedAfterAWordAndAClientGoneIsLeftAlone() {
    DataRoot root({{1, "Ana"}, {2, "Bia", 1}});
    root.write("PAC004/wv001.wav", "RIFF");  // the folder of code 4, spelled by another system
    Form again(root, CPaciente::InsertMode, makeRecord({4, ""}));
    again.typeInto("name", "Davi");
    again.check("man");
    again.ok();
    QCOMPARE(again.prompt.shown, std::vector<std::string>{"The Client´s Folder already exist"});
    QVERIFY(!std::filesystem::exists(root / "pac004") && std::filesystem::exists(root / "PAC004/wv001.wav"));
    // A client gone from the table meanwhile changes nothing: the last row is not overwritten.
    Form gone(root, CPaciente::EditMode, makeRecord({7, "Gone"}));
    gone.check("man");
    gone.ok();
    QCOMPARE(gone.prompt.shown, std::vector<std::string>{std::string(kClientNoLongerInTable)});
    QCOMPARE(tableNames(root.path()), (std::vector<std::string>{"Ana", "Bia", "Davi"}));
}

// Korean reaches a text box from the input method, a syllable block at a time. The table keeps it in the Korean
// Windows code page (949), 똠 from that page's own extension included, and the form shows it again unchanged.
void CPacienteTest::koreanIsStoredInCodePage949AndShownAgain() {
    const auto commit = [](QLineEdit* box, const QString& text) {
        box->setFocus();
        for (const QChar syllable : text) {
            QInputMethodEvent event;
            event.setCommitString(QString(syllable));
            QCoreApplication::sendEvent(box, &event);
        }
    };
    const std::string name = "\xB1\xE8\xB9\xCE\xC1\xF6", address = "\x8C\x63\xB9\xE6\xB1\xE6 5";  // 김민지, 똠방길 5
    DataRoot root;
    {
        Form form(root, CPaciente::InsertMode, makeRecord({1, ""}), LanguageId::Korean);
        commit(form.box("name"), QString::fromUtf8("김민지"));
        commit(form.box("address"), QString::fromUtf8("똠방길 5"));
        form.check("woman");
        form.ok();
        QVERIFY(form.prompt.shown.empty());
    }
    for (int round = 0; round < 2; ++round) {  // as typed, then opened and kept unchanged
        const PacienteRecord record = tableRecords(root.path()).at(0);
        QCOMPARE(std::string(recordText(record.Nome)), name);
        QCOMPARE(std::string(recordText(record.Endereco)), address);
        if (round == 1) break;
        Form form(root, CPaciente::EditMode, record, LanguageId::Korean);
        QCOMPARE(form.box("name")->text(), QString::fromUtf8("김민지"));
        QCOMPARE(form.box("address")->text(), QString::fromUtf8("똠방길 5"));
        form.ok();
        QVERIFY(form.prompt.shown.empty());
    }
}

QTEST_MAIN(CPacienteTest)
#include "CPaciente_test.moc"
