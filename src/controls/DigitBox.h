// A small box that takes digits only, up to a fixed count: the day, month and year of a date.
#pragma once

#include <QLineEdit>

class DigitBox : public QLineEdit {
    Q_OBJECT
public:
    DigitBox(int digits, QWidget* parent = nullptr);
};
