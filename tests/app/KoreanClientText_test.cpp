// Korean typed into the client form is kept in the client table in the Korean Windows code page (949), as a data
// root made on a Korean Windows holds it, and shows again as the same text when the client is opened.
#include <fstream>
#include <iterator>

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "DataRoot.h"
#include "app/CPaciente.h"

namespace {

// Korean reaches a text box from the input method, a syllable block at a time, not as key presses.
void commit(QLineEdit* box, const QString& text) {
    box->setFocus();
    for (const QChar syllable : text) {
        QInputMethodEvent event;
        event.setCommitString(QString(syllable));
        QCoreApplication::sendEvent(box, &event);
    }
}

std::string fileBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

class KoreanClientTextTest : public QObject {
    Q_OBJECT
private slots:
    void koreanIsStoredInCodePage949AndShownAgain();
};

void KoreanClientTextTest::koreanIsStoredInCodePage949AndShownAgain() {
    // 김민지 from the KS X 1001 table; 똠 lies outside it, in code page 949's own extension.
    const std::string name = "\xB1\xE8\xB9\xCE\xC1\xF6";
    const std::string address = "\x8C\x63\xB9\xE6\xB1\xE6 5";
    DataRoot root;
    FakePrompt prompt;
    CPacienteTable table(root.path(), prompt);
    table.SetFileName(std::string(kClientTableName));
    PacienteRecord current;
    {
        CPaciente form(CPaciente::InsertMode, makeRecord({1, ""}), table, current, root.path(), LanguageId::Korean,
                       prompt);
        form.show();
        commit(form.findChild<QLineEdit*>("name"), QString::fromUtf8("김민지"));
        commit(form.findChild<QLineEdit*>("address"), QString::fromUtf8("똠방길 5"));
        form.findChild<QRadioButton*>("woman")->setChecked(true);
        form.findChild<QPushButton*>("ok")->click();
    }
    QVERIFY(prompt.shown.empty());
    const std::string stored = fileBytes(root / kClientTableName);
    QVERIFY(stored.find(name) != std::string::npos && stored.find(address) != std::string::npos);

    // Opened again, changed in nothing and kept: the same text on screen and the same bytes in the table.
    const PacienteRecord record = tableRecords(root.path()).at(0);
    CPaciente form(CPaciente::EditMode, record, table, current, root.path(), LanguageId::Korean, prompt);
    form.show();
    QCOMPARE(form.findChild<QLineEdit*>("name")->text(), QString::fromUtf8("김민지"));
    QCOMPARE(form.findChild<QLineEdit*>("address")->text(), QString::fromUtf8("똠방길 5"));
    form.findChild<QPushButton*>("ok")->click();
    QVERIFY(prompt.shown.empty());
    const PacienteRecord kept = tableRecords(root.path()).at(0);
    QCOMPARE(std::string(recordText(kept.Nome)), name);
    QCOMPARE(std::string(recordText(kept.Endereco)), address);
}

QTEST_MAIN(KoreanClientTextTest)
#include "KoreanClientText_test.moc"
