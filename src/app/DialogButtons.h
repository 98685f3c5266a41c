// The texts of the buttons that end the program's dialogs.
#pragma once

#include <string_view>

#include <QtGlobal>

inline constexpr std::string_view kOkButton = QT_TRANSLATE_NOOP("Sonalys", "OK");
inline constexpr std::string_view kCancelButton = QT_TRANSLATE_NOOP("Sonalys", "Cancel");
inline constexpr std::string_view kCloseButton = QT_TRANSLATE_NOOP("Sonalys", "&Close");
