#include "view/ViewCommands.h"

#include "store/RecordingFiles.h"

namespace {

using S = CommandState;

bool withClient(const S& s) { return s.ClientCode != kNoClient; }
bool idle(const S& s) { return s.idle(); }
bool loaded(const S& s) { return s.SampleCount > 0; }
bool loadedAndIdle(const S& s) { return s.SampleCount > 0 && s.idle(); }
bool loadedNotRecording(const S& s) { return s.SampleCount > 0 && !s.Recording; }
bool playing(const S& s) { return s.Playing; }
bool recording(const S& s) { return s.Recording; }
bool zoomed(const S& s) { return s.Zoomed; }
// A selection may be copied or silenced only where its pixels still map onto the whole recording.
bool copyable(const S& s) { return s.HasSelection && !s.Zoomed && !s.Recording; }

}  // namespace

const std::array<ViewCommand, 30> kViewCommands = {{
    {kIdPlay, kCommandPlay, loaded, playing},
    {kIdRecord, QT_TRANSLATE_NOOP("Sonalys", "&Record"),
     [](const S& s) { return s.mode != DisplayMode::ModeEmpty && !s.Playing; }, recording},
    {kIdZoom, kCommandZoomIn, [](const S& s) { return s.Zoomed || s.HasSelection; }, zoomed},
    {kIdDelete, QT_TRANSLATE_NOOP("Sonalys", "&Delete"), loadedAndIdle, nullptr},
    {kIdSaveChanges, QT_TRANSLATE_NOOP("Sonalys", "&Save Changes..."),
     [](const S& s) { return s.SampleCount > 0 && s.Modified; }, nullptr},
    {kIdProperties, QT_TRANSLATE_NOOP("Sonalys", "&Properties..."), loaded, nullptr},
    {kIdPrintPreview, QT_TRANSLATE_NOOP("Sonalys", "&Print Preview"), loadedAndIdle, nullptr},
    {kIdPrint, QT_TRANSLATE_NOOP("Sonalys", "&Print..."), loadedAndIdle, nullptr},
    {kIdExportBitmap, QT_TRANSLATE_NOOP("Sonalys", "Export graph as a bmp file..."), loadedAndIdle, nullptr},
    {kIdRecordSettings, QT_TRANSLATE_NOOP("Sonalys", "Record..."), [](const S& s) { return !s.Recording; }, nullptr},
    {kIdEditNotes, QT_TRANSLATE_NOOP("Sonalys", "&Edit Notes..."),
     [](const S& s) { return s.SampleCount > 0 && s.RecordingNumber != -1; }, nullptr},
    {kIdCleanTexts, QT_TRANSLATE_NOOP("Sonalys", "Clean Texts"),
     [](const S& s) { return static_cast<int>(s.mode) > 8 && s.idle() && s.RecordingNumber != -1; }, nullptr},
    {kIdF0Setting, kCommandF0Setting, idle, nullptr},
    {kIdContents, QT_TRANSLATE_NOOP("Sonalys", "Contents..."), idle, nullptr},
    {kIdAbout, QT_TRANSLATE_NOOP("Sonalys", "&About Sonalys..."), idle, nullptr},
    {kIdBackup, QT_TRANSLATE_NOOP("Sonalys", "&Backup..."), idle, nullptr},
    {kIdPrintSetup, QT_TRANSLATE_NOOP("Sonalys", "P&rint Setup..."), idle, nullptr},
    {kIdImport, QT_TRANSLATE_NOOP("Sonalys", "Import..."),
     [](const S& s) { return s.idle() && s.ClientCode != OutsideClientCode; }, nullptr},
    {kIdCloseComparison, QT_TRANSLATE_NOOP("Sonalys", "Close"), [](const S& s) { return s.Comparing; }, nullptr},
    {kIdCompareWithFile, QT_TRANSLATE_NOOP("Sonalys", "Compare with File..."), loadedNotRecording, nullptr},
    {kIdOpenModel, QT_TRANSLATE_NOOP("Sonalys", "Open Model..."), loadedNotRecording, nullptr},
    {kIdSaveAsModel, QT_TRANSLATE_NOOP("Sonalys", "Save as a Model..."), loadedNotRecording, nullptr},
    {kIdUndo, QT_TRANSLATE_NOOP("Sonalys", "&Undo\tCtrl+Z"),
     [](const S& s) { return s.EditKind != 0 && s.EditKind != 2; }, nullptr},
    // A cut over the whole strip would leave a recording of nothing.
    {kIdCut, kCommandCut, [](const S& s) { return s.HasSelection && !s.SelectionSpansStrip; }, nullptr},
    {kIdCopy, kCommandCopy, copyable, nullptr},
    {kIdSilence, kCommandSilence, copyable, nullptr},
    {kIdPaste, kCommandPaste, [](const S& s) { return s.EditKind == 2; }, nullptr},
    {kIdSelectAll, QT_TRANSLATE_NOOP("Sonalys", "&Select All\tCtrl+A"),
     [](const S& s) { return s.SampleCount > 0 && s.idle() && !s.Zoomed; }, nullptr},
    {kIdShowSpectrogram, kCommandSpectrogram, withClient, nullptr},
    {kIdShowSpectrum, kCommandPowerSpectrum, withClient, nullptr},
}};

const ViewCommand* FindViewCommand(int id) {
    for (const ViewCommand& command : kViewCommands) {
        if (command.id == id) return &command;
    }
    return nullptr;
}

bool CommandEnabled(int id, const CommandState& state) {
    const ViewCommand* command = FindViewCommand(id);
    return command != nullptr && command->enabledWhen(state);
}

bool CommandChecked(int id, const CommandState& state) {
    const ViewCommand* command = FindViewCommand(id);
    return command != nullptr && command->checkedWhen != nullptr && command->checkedWhen(state);
}
