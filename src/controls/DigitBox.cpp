#include "controls/DigitBox.h"

#include <QRegularExpressionValidator>

DigitBox::DigitBox(int digits, QWidget* parent) : QLineEdit(parent) {
    setMaxLength(digits);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    setAlignment(Qt::AlignCenter);
    // Wide enough for the digits and the frame, in the font in use.
    setFixedWidth(fontMetrics().horizontalAdvance(QString(digits + 2, '0')) + 12);
}
