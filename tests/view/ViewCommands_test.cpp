// Which commands the state of the view allows, row by row of the table.
#include <QTest>

#include "view/ViewCommands.h"

Q_DECLARE_METATYPE(CommandState)

namespace {

CommandState loaded() {
    CommandState s;
    s.SampleCount = 1000;
    s.mode = DisplayMode::FileSpectrogramMode;
    s.RecordingNumber = 3;
    s.ClientCode = 1;
    return s;
}

template <typename Change>
CommandState with(Change change) {
    CommandState s = loaded();
    change(s);
    return s;
}

}  // namespace

class ViewCommandsTest : public QObject {
    Q_OBJECT
private slots:
    void enabledFollowsTheState_data();
    void enabledFollowsTheState();
    void checksShowPlayingRecordingAndZoom();
    void everyCommandHasOneRow();
};

void ViewCommandsTest::enabledFollowsTheState_data() {
    QTest::addColumn<int>("id");
    QTest::addColumn<CommandState>("state");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("Edit Notes for a client's recording") << kIdEditNotes << loaded() << true;
    QTest::newRow("no Edit Notes for a file from outside")
        << kIdEditNotes << with([](CommandState& s) { s.RecordingNumber = -1; }) << false;
    QTest::newRow("no Clean Texts for a file from outside")
        << kIdCleanTexts << with([](CommandState& s) { s.RecordingNumber = -1; }) << false;
    QTest::newRow("no Clean Texts on a live page")
        << kIdCleanTexts << with([](CommandState& s) { s.mode = DisplayMode::LiveSpectrumMode; }) << false;
    QTest::newRow("Cut over part of the strip")
        << kIdCut << with([](CommandState& s) { s.HasSelection = true; }) << true;
    QTest::newRow("no Cut over the whole strip") << kIdCut << with([](CommandState& s) {
        s.HasSelection = true;
        s.SelectionSpansStrip = true;
    }) << false;
    QTest::newRow("Zoom over the whole strip") << kIdZoom << with([](CommandState& s) {
        s.HasSelection = true;
        s.SelectionSpansStrip = true;
    }) << true;
    QTest::newRow("no Zoom without a selection") << kIdZoom << loaded() << false;
    QTest::newRow("Zoom back when zoomed") << kIdZoom << with([](CommandState& s) { s.Zoomed = true; }) << true;
    QTest::newRow("no Copy when zoomed") << kIdCopy << with([](CommandState& s) {
        s.HasSelection = true;
        s.Zoomed = true;
    }) << false;
    QTest::newRow("no Silence while recording") << kIdSilence << with([](CommandState& s) {
        s.HasSelection = true;
        s.Recording = true;
    }) << false;
    QTest::newRow("Paste only with something cut") << kIdPaste << with([](CommandState& s) { s.EditKind = 2; }) << true;
    QTest::newRow("no Undo after a copy") << kIdUndo << with([](CommandState& s) { s.EditKind = 2; }) << false;
    QTest::newRow("Undo after a cut") << kIdUndo << with([](CommandState& s) { s.EditKind = 1; }) << true;
    QTest::newRow("no Record on the empty view")
        << kIdRecord << with([](CommandState& s) { s.mode = DisplayMode::ModeEmpty; }) << false;
    QTest::newRow("no Record while playing") << kIdRecord << with([](CommandState& s) { s.Playing = true; }) << false;
    QTest::newRow("no Delete while playing") << kIdDelete << with([](CommandState& s) { s.Playing = true; }) << false;
    QTest::newRow("Save Changes after an edit")
        << kIdSaveChanges << with([](CommandState& s) { s.Modified = true; }) << true;
    QTest::newRow("no Import outside a client")
        << kIdImport << with([](CommandState& s) { s.ClientCode = 99999; }) << false;
    QTest::newRow("no Select All when zoomed")
        << kIdSelectAll << with([](CommandState& s) { s.Zoomed = true; }) << false;
    QTest::newRow("Compare while playing")
        << kIdCompareWithFile << with([](CommandState& s) { s.Playing = true; }) << true;
    QTest::newRow("no Play with nothing loaded")
        << kIdPlay << with([](CommandState& s) { s.SampleCount = 0; }) << false;
    QTest::newRow("no Mode menu without a client")
        << kIdShowSpectrum << with([](CommandState& s) { s.ClientCode = -1; }) << false;
    QTest::newRow("no About while recording") << kIdAbout << with([](CommandState& s) { s.Recording = true; }) << false;
    QTest::newRow("no Close without a comparison") << kIdCloseComparison << loaded() << false;
}

void ViewCommandsTest::enabledFollowsTheState() {
    QFETCH(int, id);
    QFETCH(CommandState, state);
    QFETCH(bool, enabled);
    QCOMPARE(CommandEnabled(id, state), enabled);
}

void ViewCommandsTest::checksShowPlayingRecordingAndZoom() {
    QVERIFY(CommandChecked(kIdPlay, with([](CommandState& s) { s.Playing = true; })));
    QVERIFY(CommandChecked(kIdRecord, with([](CommandState& s) { s.Recording = true; })));
    QVERIFY(CommandChecked(kIdZoom, with([](CommandState& s) { s.Zoomed = true; })));
    QVERIFY(!CommandChecked(kIdZoom, loaded()));
    QVERIFY(!CommandChecked(kIdDelete, loaded()));
    QVERIFY(!CommandEnabled(12345, loaded()));
}

void ViewCommandsTest::everyCommandHasOneRow() {
    for (const ViewCommand& command : kViewCommands) QCOMPARE(FindViewCommand(command.id), &command);
}

QTEST_MAIN(ViewCommandsTest)
#include "ViewCommands_test.moc"
