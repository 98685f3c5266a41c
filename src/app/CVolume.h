// The dialog "Playback and Record Volume": an upright slider for each mixer line — the speakers' master level, our
// own playback and the recording input — that sets its line as it moves and follows a change made elsewhere. A
// missing line leaves its slider disabled.
#pragma once

#include <QDialog>
#include <array>
#include <string_view>

#include "audio/SoundServerMixer.h"

class MixerVolumes;
class QLabel;
class VolumeSlider;

inline constexpr std::string_view kVolumeDialogTitle = QT_TRANSLATE_NOOP("Sonalys", "Playback and Record Volume");
inline constexpr std::string_view kMasterCaption = QT_TRANSLATE_NOOP("Sonalys", "Volume Control");
inline constexpr std::string_view kWaveCaption = QT_TRANSLATE_NOOP("Sonalys", "Wave Sound");
// The input column is named after the record input in use.
inline constexpr std::string_view kMicCaption = QT_TRANSLATE_NOOP("Sonalys", "Mic");
inline constexpr std::string_view kLineCaption = QT_TRANSLATE_NOOP("Sonalys", "Line");

class CVolume : public QDialog {
    Q_OBJECT
public:
    // `recordInput` 0 microphone, 1 line in.
    CVolume(MixerVolumes& mixer, int recordInput, QWidget* parent = nullptr);

    VolumeSlider* slider(MixerLine line) const { return m_sliders[static_cast<std::size_t>(line)]; }
    QLabel* caption(MixerLine line) const { return m_captions[static_cast<std::size_t>(line)]; }

private:
    void addColumn(MixerLine line, std::string_view caption);

    MixerVolumes& m_mixer;
    std::array<VolumeSlider*, 3> m_sliders{};
    std::array<QLabel*, 3> m_captions{};
};
