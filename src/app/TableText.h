// How text on the screen and the bytes of the client table meet. The table keeps the bytes as typed, in the
// Windows code page of the language in use (Western European, or Korean), so that a data root made on Windows
// reads the same here.
#pragma once

#include <string>
#include <string_view>

#include <QString>
#include <QValidator>

#include "app/SettingsFiles.h"

QString TableTextToScreen(std::string_view bytes, LanguageId language);
std::string ScreenTextToTable(const QString& text, LanguageId language);

// Refuses a keystroke that would make the text longer than `maxBytes` in the table's code page, or that the code
// page cannot hold at all.
class TableTextValidator : public QValidator {
public:
    TableTextValidator(int maxBytes, LanguageId language, QObject* parent);
    State validate(QString& input, int& position) const override;

private:
    int m_maxBytes;
    LanguageId m_language;
};
