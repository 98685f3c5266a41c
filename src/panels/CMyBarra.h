// The side panel of the spectrogram page: besides the record and play buttons, the spectrogram's colours, band,
// upper frequency and dynamic range, whether it is shown at all, and the F0 and formant curves over it.
#pragma once

#include <string_view>

#include "analysis/Palette.h"
#include "panels/ClassAux.h"

class QCheckBox;

// "F" with a subscript "0".
inline constexpr std::string_view kCaptionF0 = QT_TRANSLATE_NOOP("Sonalys", "F₀");
inline constexpr std::string_view kCaptionBand = QT_TRANSLATE_NOOP("Sonalys", "Band");
inline constexpr std::string_view kCaptionFormants = QT_TRANSLATE_NOOP("Sonalys", "Formants");
inline constexpr std::string_view kCaptionSpectrogram = QT_TRANSLATE_NOOP("Sonalys", "Spectrogram");
inline constexpr std::string_view kTipColors = QT_TRANSLATE_NOOP("Sonalys", "Colours of the spectrogram");
inline constexpr std::string_view kTipBand = QT_TRANSLATE_NOOP("Sonalys", "Analysis bandwidth of the spectrogram");
inline constexpr std::string_view kTipF0 = QT_TRANSLATE_NOOP("Sonalys", "Show the F0 curve and its read-out");
inline constexpr std::string_view kTipFormants = QT_TRANSLATE_NOOP("Sonalys", "Show the formants");
inline constexpr std::string_view kTipSpectrogram = QT_TRANSLATE_NOOP("Sonalys", "Show or hide the spectrogram");
inline constexpr std::string_view kTipDynamicRange =
    QT_TRANSLATE_NOOP("Sonalys", "Dynamic range: drag the pointer, or use the arrow keys");

// The first command of the colour menus; line k of a menu gives this plus k.
inline constexpr int kFirstColourCommand = 30145;

class CMyBarra : public ClassAux {
    Q_OBJECT
public:
    explicit CMyBarra(QWidget* parent = nullptr);

    void ApplyBand();
    // A command of the colour menu: 30145, 30146 or 30147 make the colour scheme 0, 1 or 2.
    void OnColorCommand(int command);
    // Opens the colour menu under its button, holding the audio while it is open.
    void OpenColorMenu();

    QComboBox* BandBox() const { return m_band; }
    QToolButton* ColorsButton() const { return m_colors; }
    bool f0Checked() const;
    bool formantsChecked() const;
    bool spectrogramChecked() const;
    QCheckBox* spectrogramBox() const { return m_spectrogram; }
    QCheckBox* f0Box() const { return m_f0; }
    QCheckBox* formantsBox() const { return m_formants; }

    // The range the spectrogram uses: the pointer's last value (70 until it moves), or 0 with "Spectrogram" off.
    int dynamicRange() const;
    int colourScheme() const { return m_colourScheme; }
    // The pointer placed at `range` dB, as if dragged there.
    void SetDynamicRange(int range);

signals:
    void bandChanged(int hz);
    void dynamicRangeChanged(int range);
    void colourSchemeChanged(int scheme);
    void f0Toggled(bool on);
    void formantsToggled(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showSpectrogram(bool on);
    void placePointer(int left);
    void rangeChanged();
    void drawStrip(QPainter& painter) const;

    QToolButton* m_colors = nullptr;
    QComboBox* m_band = nullptr;
    QCheckBox* m_f0 = nullptr;
    QCheckBox* m_formants = nullptr;
    QCheckBox* m_spectrogram = nullptr;
    bool m_dragging = false;
    // The range the pointer last gave, in force while "Spectrogram" is on and kept while it is off.
    int m_rememberedRange = kDefaultDynamicRange;
    int m_colourScheme = kDefaultColourScheme;
};
