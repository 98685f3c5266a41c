// Which commands work, and which show a check, from the state of the view: one table for the menus, the tool bar
// and the context menu of the strip. Idle means neither recording nor playing.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include <QtGlobal>

#include "view/DisplayMode.h"

// What the rules of the table read.
struct CommandState {
    std::size_t SampleCount = 0;
    bool Playing = false;
    bool Recording = false;
    DisplayMode mode = DisplayMode::ModeEmpty;
    bool Zoomed = false;
    bool HasSelection = false;
    bool SelectionSpansStrip = false;  // the selection runs over the whole strip
    bool Modified = false;
    int RecordingNumber = 0;
    int EditKind = 0;  // 2: something cut or copied is waiting to be pasted
    bool Comparing = false;
    int ClientCode = -1;  // -1 no client, 99999 work without a client

    bool idle() const { return !Recording && !Playing; }
};

struct ViewCommand {
    int id;
    std::string_view text;
    bool (*enabledWhen)(const CommandState&);
    bool (*checkedWhen)(const CommandState&);  // null for a command that is never checked
};

inline constexpr int kIdPlay = 32810;
inline constexpr int kIdRecord = 32841;
inline constexpr int kIdZoom = 32782;
inline constexpr int kIdDelete = 32791;
inline constexpr int kIdSaveChanges = 32792;
inline constexpr int kIdProperties = 32882;
inline constexpr int kIdPrintPreview = 57609;
inline constexpr int kIdPrint = 57607;
inline constexpr int kIdExportBitmap = 32801;
inline constexpr int kIdRecordSettings = 32890;
inline constexpr int kIdEditNotes = 32807;
inline constexpr int kIdCleanTexts = 32851;
inline constexpr int kIdF0Setting = 32852;
inline constexpr int kIdContents = 32856;
inline constexpr int kIdAbout = 57664;
inline constexpr int kIdBackup = 32806;
inline constexpr int kIdPrintSetup = 57606;
inline constexpr int kIdImport = 32853;
inline constexpr int kIdCloseComparison = 32874;
inline constexpr int kIdCompareWithFile = 32873;
inline constexpr int kIdOpenModel = 32878;
inline constexpr int kIdSaveAsModel = 32877;
inline constexpr int kIdUndo = 57643;
inline constexpr int kIdCut = 32819;
inline constexpr int kIdCopy = 32820;
inline constexpr int kIdSilence = 32823;
inline constexpr int kIdPaste = 32821;
inline constexpr int kIdSelectAll = 32828;
inline constexpr int kIdShowSpectrogram = 32838;
inline constexpr int kIdShowSpectrum = 32839;

inline constexpr std::string_view kCommandPlay = QT_TRANSLATE_NOOP("Sonalys", "&Play");
inline constexpr std::string_view kCommandStop = QT_TRANSLATE_NOOP("Sonalys", "&Stop");  // Play while playing
inline constexpr std::string_view kCommandZoomIn = QT_TRANSLATE_NOOP("Sonalys", "&Zoom +");
inline constexpr std::string_view kCommandZoomOut = QT_TRANSLATE_NOOP("Sonalys", "Zoom -");  // zoomed
inline constexpr std::string_view kCommandCut = QT_TRANSLATE_NOOP("Sonalys", "Cut\tCtrl+X");
inline constexpr std::string_view kCommandCopy = QT_TRANSLATE_NOOP("Sonalys", "&Copy\tCtrl+C");
inline constexpr std::string_view kCommandPaste = QT_TRANSLATE_NOOP("Sonalys", "&Paste\tCtrl+V");
inline constexpr std::string_view kCommandSilence = QT_TRANSLATE_NOOP("Sonalys", "Silence");
inline constexpr std::string_view kCommandSpectrogram = QT_TRANSLATE_NOOP("Sonalys", "&Spectrogram");
inline constexpr std::string_view kCommandPowerSpectrum = QT_TRANSLATE_NOOP("Sonalys", "Power Spectrum");
inline constexpr std::string_view kCommandF0Setting = QT_TRANSLATE_NOOP("Sonalys", "F0 Setting...");

// Every command of the table, in menu order.
extern const std::array<ViewCommand, 30> kViewCommands;

// The row of command `id`, or null.
const ViewCommand* FindViewCommand(int id);
bool CommandEnabled(int id, const CommandState& state);
bool CommandChecked(int id, const CommandState& state);
