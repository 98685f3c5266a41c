// The box that refuses a screen too small or too poor in colours for the program, and offers to open the
// display settings.
#pragma once

#include <string_view>

#include <QDialog>
#include <QtGlobal>

inline constexpr std::string_view kConfiguraCoresTitle = QT_TRANSLATE_NOOP("Sonalys", "Attention!");
inline constexpr std::string_view kNeedsOtherResolution =
    QT_TRANSLATE_NOOP("Sonalys", "Sonalys needs a different video resolution !");
inline constexpr std::string_view kSupportedResolutions =
    QT_TRANSLATE_NOOP("Sonalys", "Resolution : 800 x 600, 1024 x 768 ou 1280 x 800 pixels");
inline constexpr std::string_view kSupportedColours =
    QT_TRANSLATE_NOOP("Sonalys", "Colors: High Color (16 bits) or better");
inline constexpr std::string_view kChangeConfigurationNow =
    QT_TRANSLATE_NOOP("Sonalys", "Do you want to change the configuration now ?");

class CConfiguraCores : public QDialog {
    Q_OBJECT
public:
    explicit CConfiguraCores(QWidget* parent = nullptr);
    // exec() gives Accepted for Yes (open the display settings) and Rejected for No.
};
