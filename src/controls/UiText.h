// Every text the user reads is declared once, in English, beside its concept, and reaches the screen through
// here, so that a translation loaded for the chosen language can replace it.
#pragma once

#include <string_view>

#include <QString>

// The translation context of the declared texts (marked with QT_TRANSLATE_NOOP("Sonalys", ...)).
inline constexpr const char* kTextContext = "Sonalys";

// The declared English text in the language in force; the text itself when no translation has it.
QString uiText(std::string_view english);
