// The desktop's own settings programs that the program hands the user over to: the display settings (when the
// screen does not suit) and the sound volume mixer (when no mixer of our own is up).
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <string_view>
#include <vector>

#include <QtGlobal>

struct DesktopProgram {
    QString program;  // looked up on the PATH
    QStringList arguments;
};

// Candidates in the order they are tried, for this platform.
std::vector<DesktopProgram> DisplaySettingsPrograms();
std::vector<DesktopProgram> VolumeControlPrograms();

// Starts the first candidate found, detached; false when none is installed or none would start.
// `start` is the starter (QProcess::startDetached in the program, a recorder in tests).
using ProgramStarter = std::function<bool(const QString& path, const QStringList& arguments)>;
bool StartFirstProgram(const std::vector<DesktopProgram>& candidates, const ProgramStarter& start);
// Starts a program detached from ours, so that it outlives it.
bool StartDetached(const QString& path, const QStringList& arguments);

inline constexpr std::string_view kNoDisplaySettingsProgram =
    QT_TRANSLATE_NOOP("Sonalys",
                      "No display settings program was found on this computer.\nPlease change the screen resolution "
                      "in the settings of your desktop.");
