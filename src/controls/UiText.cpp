#include "controls/UiText.h"

#include <QByteArray>
#include <QCoreApplication>

QString uiText(std::string_view english) {
    const QByteArray source(english.data(), static_cast<qsizetype>(english.size()));
    return QCoreApplication::translate(kTextContext, source.constData());
}
