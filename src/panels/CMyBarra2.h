// The side panel of the power-spectrum page: besides the record and play buttons, the FFT size, the upper
// frequency, how the curve is drawn and in which colour, and the long-term average over it.
#pragma once

#include <string_view>

#include <QColor>

#include "panels/ClassAux.h"
#include "panels/PanelDefaults.h"

class QCheckBox;

inline constexpr std::string_view kCaptionFftSize = QT_TRANSLATE_NOOP("Sonalys", "FFT Size");
inline constexpr std::string_view kCaptionVisualisation = QT_TRANSLATE_NOOP("Sonalys", "Visualisation");
inline constexpr std::string_view kCaptionLtas = QT_TRANSLATE_NOOP("Sonalys", "LTAS");
// The lines of "Visualisation", from the program's texts.
inline constexpr std::string_view kStyleSolid = QT_TRANSLATE_NOOP("Sonalys", "Solid  ");
inline constexpr std::string_view kStyleLine = QT_TRANSLATE_NOOP("Sonalys", "Line");
inline constexpr std::string_view kTipCurveColour = QT_TRANSLATE_NOOP("Sonalys", "Colour of the spectrum's curve");
inline constexpr std::string_view kTipFftSize =
    QT_TRANSLATE_NOOP("Sonalys", "Points of each spectrum: more points, finer frequency detail");
inline constexpr std::string_view kTipVisualisation =
    QT_TRANSLATE_NOOP("Sonalys", "Draw the spectrum as a filled area or as a line");
inline constexpr std::string_view kTipLtas = QT_TRANSLATE_NOOP("Sonalys", "Show the long-term average spectrum");

class CMyBarra2 : public ClassAux {
    Q_OBJECT
public:
    explicit CMyBarra2(QWidget* parent = nullptr);

    void ApplyFftSize();
    // A command of the colour menu: 30145 + i takes line i's colour for the curve.
    void OnColorCommand(int command);
    void OpenColorMenu();

    QToolButton* ColorButton() const { return m_colors; }
    QComboBox* FftSizeBox() const { return m_fftSize; }
    QComboBox* VisualisationBox() const { return m_style; }
    QCheckBox* LtasBox() const { return m_ltas; }
    int colourIndex() const { return m_colourIndex; }

    void retranslate() override;

signals:
    void fftSizeChanged(int size);
    void styleChanged(SpectrumStyle style);
    void ltasToggled(bool on);
    void curveColourChanged(const QColor& colour);

private:
    void fillStyles();

    QToolButton* m_colors = nullptr;
    QComboBox* m_fftSize = nullptr;
    QComboBox* m_style = nullptr;
    QCheckBox* m_ltas = nullptr;
    int m_colourIndex = kDefaultCurveColour;
};
