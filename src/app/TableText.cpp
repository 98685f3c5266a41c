#include "app/TableText.h"

#include <optional>

#include <QStringDecoder>
#include <QStringEncoder>

namespace {

// Windows' own Korean code page, with the syllables past the KS X 1001 set. The name matters: "CP949" is IBM's
// Korean code page to the converter, which lacks those syllables.
const char* codePage(LanguageId language) { return language == LanguageId::Korean ? "windows-949" : "windows-1252"; }

// Nothing when the text cannot be written in the code page.
std::optional<QByteArray> encode(const QString& text, LanguageId language) {
    QStringEncoder encoder(codePage(language));
    if (!encoder.isValid()) encoder = QStringEncoder(QStringConverter::Latin1);
    QByteArray bytes = encoder(text);
    if (encoder.hasError()) return std::nullopt;
    return bytes;
}

}  // namespace

QString TableTextToScreen(std::string_view bytes, LanguageId language) {
    QStringDecoder decoder(codePage(language));
    if (!decoder.isValid()) decoder = QStringDecoder(QStringConverter::Latin1);
    return decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

std::string ScreenTextToTable(const QString& text, LanguageId language) {
    if (const auto bytes = encode(text, language)) return bytes->toStdString();
    // A character the code page lacks becomes "?" (its own substitute, 0x1A, would end a dBase file).
    std::string result;
    for (const QChar c : text) {
        const auto bytes = encode(QString(c), language);
        result += bytes ? bytes->toStdString() : std::string("?");
    }
    return result;
}

TableTextValidator::TableTextValidator(int maxBytes, LanguageId language, QObject* parent)
    : QValidator(parent), m_maxBytes(maxBytes), m_language(language) {}

QValidator::State TableTextValidator::validate(QString& input, int&) const {
    const auto bytes = encode(input, m_language);
    return bytes && bytes->size() <= m_maxBytes ? Acceptable : Invalid;
}
