// The dialog "F0 Setting...": the range of the F0 curve's scale, typed or picked from two lists.
#pragma once

#include <array>
#include <string_view>

#include <QDialog>
#include <QtGlobal>

#include "panels/F0Range.h"

class QComboBox;
struct Prompt;

inline constexpr std::string_view kF0MinimumLabel = QT_TRANSLATE_NOOP("Sonalys", "Min.:");
inline constexpr std::string_view kF0MaximumLabel = QT_TRANSLATE_NOOP("Sonalys", "Max:");
inline constexpr std::string_view kTipF0Setting =
    QT_TRANSLATE_NOOP("Sonalys", "Set the lowest and highest frequency of the F0 curve");

// What the lists offer, in Hz; any other number may be typed.
inline constexpr std::array<int, 6> kF0MinimumEntries = {60, 70, 80, 90, 100, 200};
inline constexpr std::array<int, 8> kF0MaximumEntries = {250, 300, 400, 500, 600, 900, 1000, 1200};

class CConfF0 : public QDialog {
    Q_OBJECT
public:
    // Opens on `current`; a refused range is told through `prompt` and the dialog stays.
    CConfF0(const F0Range& current, Prompt& prompt, QWidget* parent = nullptr);

    // The range typed, the text of each box read as a whole number.
    F0Range range() const;
    QComboBox* minimumBox() const { return m_minimum; }
    QComboBox* maximumBox() const { return m_maximum; }

    void accept() override;

private:
    Prompt& m_prompt;
    QComboBox* m_minimum;
    QComboBox* m_maximum;
};
