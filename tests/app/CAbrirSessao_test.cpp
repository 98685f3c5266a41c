#include "app/CAbrirSessao.h"

#include <QDateTime>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "DataRoot.h"
#include "FakePrompt.h"
#include "controls/ReportList.h"

Q_DECLARE_METATYPE(LanguageId)

namespace {

QStringList rows(const ReportList* list) {
    QStringList texts;
    for (int row = 0; row < list->rowCount(); ++row) texts << list->cellText(row, 0);
    return texts;
}

// Client 5's folder: dated recordings of two days, one undated (today, from its file), one sent to backup
// (today, from its marker), a sound beside a stale backup marker, and number 150, which the list never shows.
struct ClientWithRecordings : DataRoot {
    ClientWithRecordings() : DataRoot({{5, "Bia", 1}}) {
        DataRoot& root = *this;
        root.recording(5, "wv001.wav", utcSeconds(2024, 3, 14));
        root.write("pac005/wv001.txt", "notes");
        root.write("pac005/wv001.mrk", "labels");
        root.recording(5, "qv002.wav", utcSeconds(2023, 12, 1));
        root.write("pac005/wv003.bkp", "");
        root.recording(5, "wv004.wav", utcSeconds(2024, 3, 14));
        root.write("pac005/wv004.bkp", "");
        root.recording(5, "qv006.wav");
        root.recording(5, "wv150.wav", utcSeconds(2025, 1, 1));
    }
};

QString today(const char* format) { return QDateTime::currentDateTimeUtc().date().toString(format); }

}  // namespace

class CAbrirSessaoTest : public QObject {
    Q_OBJECT
private slots:
    void rowsAreNewestFirstInTheLanguagesDateOrder_data();
    void rowsAreNewestFirstInTheLanguagesDateOrder();
    void eachRowCarriesThePictureOfItsKindAndOpenReadsTheNumberAtTheEnd();
    void aRecordingSentToBackupCanBeNeitherOpenedNorDeleted();
    void deleteRemovesSoundNotesAndDateButKeepsLabelsAndIsNotOfferedWhenPicking();
};

void CAbrirSessaoTest::rowsAreNewestFirstInTheLanguagesDateOrder_data() {
    QTest::addColumn<LanguageId>("language");
    QTest::addColumn<QString>("todayFormat");
    QTest::addColumn<QStringList>("older");
    QTest::newRow("English") << LanguageId::English << "MM/dd/yyyy"
                             << QStringList{"03/14/2024 File 4", "03/14/2024 File 1", "12/01/2023 File 2"};
    QTest::newRow("Korean") << LanguageId::Korean << "yyyy/MM/dd"
                            << QStringList{"2024/03/14 File 4", "2024/03/14 File 1", "2023/12/01 File 2"};
    QTest::newRow("Spanish") << LanguageId::Spanish << "dd/MM/yyyy"
                             << QStringList{"14/03/2024 File 4", "14/03/2024 File 1", "01/12/2023 File 2"};
}

void CAbrirSessaoTest::rowsAreNewestFirstInTheLanguagesDateOrder() {
    QFETCH(LanguageId, language);
    QFETCH(QString, todayFormat);
    QFETCH(QStringList, older);
    const ClientWithRecordings root;
    FakePrompt prompt;
    CAbrirSessao dialog(makeRecord({5, "Bia", 1}), root.path(), language, prompt);
    QCOMPARE(dialog.windowTitle(), QString("Bia - Files"));
    const QString now = today(todayFormat.toLatin1().constData());
    // Of one day, the highest number first.
    QCOMPARE(rows(dialog.list()), QStringList({now + " File 6", now + " File 3"}) + older);
    QVERIFY(prompt.shown.empty());
}

void CAbrirSessaoTest::eachRowCarriesThePictureOfItsKindAndOpenReadsTheNumberAtTheEnd() {
    const ClientWithRecordings root;
    FakePrompt prompt;
    CAbrirSessao dialog(makeRecord({5, "Bia"}), root.path(), LanguageId::English, prompt);
    QList<int> kinds;
    for (int row = 0; row < dialog.list()->rowCount(); ++row) kinds << dialog.list()->rowKey(row);
    // File 6 qv undated, 3 sent to backup, 4 wv dated (its sound wins over the stale marker), 1 wv dated, 2 qv dated.
    QCOMPARE(kinds, QList<int>({3, 4, 0, 0, 1}));
    dialog.open();
    QCOMPARE(prompt.last(), std::string("Select a file!"));
    dialog.list()->selectRow(4);  // 12/01/2023 File 2
    dialog.findChild<QPushButton*>("open")->click();
    QCOMPARE(dialog.result(), int(CAbrirSessao::RecordingChosen));
    QCOMPARE(dialog.RecordingNumber(), 2);
    QCOMPARE(dialog.Kind(), FileKind::QvWithDate);
}

void CAbrirSessaoTest::aRecordingSentToBackupCanBeNeitherOpenedNorDeleted() {
    const ClientWithRecordings root;
    FakePrompt prompt;
    CAbrirSessao dialog(makeRecord({5, "Bia"}), root.path(), LanguageId::English, prompt);
    dialog.list()->selectRow(1);  // File 3, sent to backup
    dialog.open();
    dialog.deleteRecording();
    QCOMPARE(prompt.shown, std::vector<std::string>(2,
                                                    "This file was send to Backup!\nIt´s necessary to attach backup "
                                                    "files to access this file!"));
    QCOMPARE(dialog.result(), 0);
    QVERIFY(std::filesystem::exists(root / "pac005/wv003.bkp"));
}

void CAbrirSessaoTest::deleteRemovesSoundNotesAndDateButKeepsLabelsAndIsNotOfferedWhenPicking() {
    const ClientWithRecordings root;
    FakePrompt prompt;
    CAbrirSessao dialog(makeRecord({5, "Bia"}), root.path(), LanguageId::English, prompt);
    QSignalSpy deleted(&dialog, &CAbrirSessao::recordingDeleted);
    dialog.list()->selectRow(3);  // 03/14/2024 File 1
    prompt.answers = {false, true};
    dialog.deleteRecording();
    QVERIFY(std::filesystem::exists(root / "pac005/wv001.wav"));
    dialog.findChild<QPushButton*>("delete")->click();
    QCOMPARE(prompt.last(),
             std::string("Attention, All Information about this File will be deleted!\nAre you Sure you Want to "
                         "Continue?"));
    for (const char* gone : {"wv001.wav", "wv001.txt", "wv001.ddt"})
        QVERIFY2(!std::filesystem::exists(root / "pac005" / gone), gone);
    QVERIFY(std::filesystem::exists(root / "pac005/wv001.mrk"));
    QCOMPARE(deleted.count(), 1);
    QCOMPARE(dialog.list()->rowCount(), 4);
    // Picking a recording to compare with offers no Delete.
    CAbrirSessao picking(makeRecord({5, "Bia"}), root.path(), LanguageId::English, prompt, true);
    picking.show();
    QVERIFY(!picking.findChild<QPushButton*>("delete")->isVisible());
}

QTEST_MAIN(CAbrirSessaoTest)
#include "CAbrirSessao_test.moc"
