// The About box: the program's name and version, the machine's physical memory and the operating system.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <QDialog>
#include <QString>
#include <QtGlobal>

inline constexpr std::string_view kAboutTitle = QT_TRANSLATE_NOOP("Sonalys", "About Sonalys");
inline constexpr std::string_view kVersionText = QT_TRANSLATE_NOOP("Sonalys", "version 4.2");
inline constexpr std::string_view kTrialVersion = QT_TRANSLATE_NOOP("Sonalys", "Trial Version");
inline constexpr std::string_view kMemoryFormat = QT_TRANSLATE_NOOP("Sonalys", "%.1f MB");
inline constexpr std::string_view kMemoryLabel = QT_TRANSLATE_NOOP("Sonalys", "Physical memory:");
inline constexpr std::string_view kSystemLabel = QT_TRANSLATE_NOOP("Sonalys", "Operating system:");

// "Sonalys version 4.2", or "Sonalys Trial Version" for a program that is not licensed.
QString VersionLine(bool licensed);
// The memory line from its template: 2048 MB gives "2048,0 MB".
QString MemoryText(std::int64_t megabytes);

class CAboutDlg : public QDialog {
    Q_OBJECT
public:
    explicit CAboutDlg(bool licensed, QWidget* parent = nullptr);
};
