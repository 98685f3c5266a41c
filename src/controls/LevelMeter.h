// A small bar showing the level of the sound coming in while recording: the RMS as a filled bar, the peak hold as a
// tick, on a scale from -60 dBFS to full scale. The bar is green, amber when a peak comes near full scale, and red
// when a block clipped; once the take has clipped, a red mark stays at the full-scale end until it is cleared.
#pragma once

#include <string_view>

#include <QWidget>
#include <QtGlobal>

#include "analysis/InputLevel.h"

inline constexpr std::string_view kTipInputLevel = QT_TRANSLATE_NOOP("Sonalys", "Input level (peak and RMS, dBFS)");

class LevelMeter : public QWidget {
    Q_OBJECT
public:
    // The lowest level the bar shows, in dBFS: quieter sound leaves it empty.
    static constexpr double kBottomDb = -60.0;

    explicit LevelMeter(QWidget* parent = nullptr);

    // Shows the level of the last captured block; upright when the meter is taller than wide.
    void setLevel(const InputLevel& level);
    // Back to an empty bar, as before a take.
    void clear();

    // What the bar shows now: RMS and hold in dBFS, its colour, and whether the take has clipped.
    double rmsDb() const { return m_rmsDb; }
    double holdDb() const { return m_holdDb; }
    LevelZone zone() const { return m_zone; }
    bool takeClipped() const { return m_takeClipped; }
    // The colour of the bar in each zone.
    static QColor zoneColour(LevelZone zone);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // The share of the bar's length a level fills, 0 to 1.
    static double fraction(double db);

    double m_rmsDb = InputLevel::kFloorDb;
    double m_holdDb = InputLevel::kFloorDb;
    LevelZone m_zone = LevelZone::Normal;
    bool m_takeClipped = false;
};
