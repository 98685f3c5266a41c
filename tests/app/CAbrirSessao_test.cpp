#include "app/CAbrirSessao.h"

#include <QDateTime>
#include <QPushButton>
#include <QTest>

#include "DataRoot.h"
#include "FakePrompt.h"
#include "controls/ReportList.h"

Q_DECLARE_METATYPE(LanguageId)

namespace {

// Client 5's folder: dated recordings of two days, one undated (today, from its file), one sent to backup
// (today, from its marker), and number 150, which the list never shows.
struct ClientWithRecordings : DataRoot {
    ClientWithRecordings() : DataRoot({{5, "Bia", 1}}) {
        recording(5, "wv001.wav", utcSeconds(2024, 3, 14));
        write("pac005/wv001.txt", "notes");
        write("pac005/wv001.mrk", "labels");
        recording(5, "qv002.wav", utcSeconds(2023, 12, 1));
        write("pac005/wv003.bkp", "");
        recording(5, "qv006.wav");
        recording(5, "wv150.wav", utcSeconds(2025, 1, 1));
    }
};

}  // namespace

class CAbrirSessaoTest : public QObject {
    Q_OBJECT
private slots:
    void rowsAreNewestFirstInTheLanguagesDateOrder_data();
    void rowsAreNewestFirstInTheLanguagesDateOrder();
    void refusalsAndTheQuestionBeforeDeleting();
};

void CAbrirSessaoTest::rowsAreNewestFirstInTheLanguagesDateOrder_data() {
    QTest::addColumn<LanguageId>("language");
    QTest::addColumn<QString>("todayFormat");
    QTest::addColumn<QStringList>("older");
    QTest::newRow("English") << LanguageId::English << "MM/dd/yyyy"
                             << QStringList{"03/14/2024 File 1", "12/01/2023 File 2"};
    QTest::newRow("Korean") << LanguageId::Korean << "yyyy/MM/dd"
                            << QStringList{"2024/03/14 File 1", "2023/12/01 File 2"};
    QTest::newRow("Spanish") << LanguageId::Spanish << "dd/MM/yyyy"
                             << QStringList{"14/03/2024 File 1", "01/12/2023 File 2"};
}

void CAbrirSessaoTest::rowsAreNewestFirstInTheLanguagesDateOrder() {
    QFETCH(LanguageId, language);
    QFETCH(QString, todayFormat);
    QFETCH(QStringList, older);
    const ClientWithRecordings root;
    FakePrompt prompt;
    CAbrirSessao dialog(makeRecord({5, "Bia", 1}), root.path(), language, prompt);
    QCOMPARE(dialog.windowTitle(), QString("Bia - Files"));
    const QString now = QDateTime::currentDateTimeUtc().date().toString(todayFormat);
    QStringList rows;
    for (int row = 0; row < dialog.list()->rowCount(); ++row) rows << dialog.list()->cellText(row, 0);
    // Of one day, the highest number first.
    QCOMPARE(rows, QStringList({now + " File 6", now + " File 3"}) + older);
}

void CAbrirSessaoTest::refusalsAndTheQuestionBeforeDeleting() {
    const ClientWithRecordings root;
    FakePrompt prompt;
    CAbrirSessao dialog(makeRecord({5, "Bia"}), root.path(), LanguageId::English, prompt);
    dialog.open();
    dialog.list()->selectRow(1);  // File 3, sent to backup: neither opened nor deleted
    dialog.open();
    dialog.deleteRecording();
    const std::string sentToBackup =
        "This file was send to Backup!\nIt´s necessary to attach backup files to access this file!";
    QCOMPARE(prompt.shown, (std::vector<std::string>{"Select a file!", sentToBackup, sentToBackup}));
    QVERIFY(std::filesystem::exists(root / "pac005/wv003.bkp"));
    dialog.list()->selectRow(2);  // 03/14/2024 File 1
    prompt.answers = {false, true};
    dialog.deleteRecording();
    QVERIFY(std::filesystem::exists(root / "pac005/wv001.wav"));
    dialog.findChild<QPushButton*>("delete")->click();
    QCOMPARE(prompt.last(),
             std::string("Attention, All Information about this File will be deleted!\nAre you Sure you Want to "
                         "Continue?"));
    // The sound, its notes and its date go; its labels stay.
    for (const char* gone : {"wv001.wav", "wv001.txt", "wv001.ddt"})
        QVERIFY2(!std::filesystem::exists(root / "pac005" / gone), gone);
    QVERIFY(std::filesystem::exists(root / "pac005/wv001.mrk"));
}

QTEST_MAIN(CAbrirSessaoTest)
#include "CAbrirSessao_test.moc"
