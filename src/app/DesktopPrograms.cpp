#include "app/DesktopPrograms.h"

#include <QProcess>
#include <QStandardPaths>

std::vector<DesktopProgram> DisplaySettingsPrograms() {
#if defined(_WIN32)
    return {{"rundll32.exe", {"shell32.dll,Control_RunDLL", "desk.cpl,,3"}}, {"control.exe", {"desk.cpl"}}};
#elif defined(__APPLE__)
    return {{"open", {"x-apple.systempreferences:com.apple.preference.displays"}}};
#else
    return {{"gnome-control-center", {"display"}},
            {"systemsettings", {"kcm_kscreen"}},
            {"kcmshell6", {"kcm_kscreen"}},
            {"kcmshell5", {"kcm_kscreen"}},
            {"xfce4-display-settings", {}},
            {"cinnamon-settings", {"display"}},
            {"mate-display-properties", {}},
            {"lxqt-config-monitor", {}},
            {"lxrandr", {}},
            {"arandr", {}}};
#endif
}

std::vector<DesktopProgram> VolumeControlPrograms() {
#if defined(_WIN32)
    return {{"sndvol.exe", {}}, {"sndvol32.exe", {}}};
#elif defined(__APPLE__)
    return {{"open", {"x-apple.systempreferences:com.apple.preference.sound"}}};
#else
    return {{"pavucontrol", {}},
            {"pavucontrol-qt", {}},
            {"gnome-control-center", {"sound"}},
            {"systemsettings", {"kcm_pulseaudio"}},
            {"kmix", {}},
            {"xfce4-mixer", {}},
            {"mate-volume-control", {}}};
#endif
}

bool StartFirstProgram(const std::vector<DesktopProgram>& candidates, const ProgramStarter& start) {
    for (const auto& candidate : candidates) {
        const QString path = QStandardPaths::findExecutable(candidate.program);
        if (path.isEmpty()) continue;
        if (start(path, candidate.arguments)) return true;
    }
    return false;
}

bool StartDetached(const QString& path, const QStringList& arguments) {
    return QProcess::startDetached(path, arguments);
}
