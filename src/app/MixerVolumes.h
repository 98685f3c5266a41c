// The mixer lines the main frame owns: the speakers' master level, the level of our own playback and the level of
// the recording input. They are set up when the frame is made, the input line is made anew when the record input
// changes, and a level changed from outside is told once, through levelChanged, to whoever shows it.
#pragma once

#include <QObject>
#include <array>
#include <functional>
#include <memory>
#include <string_view>

#include "audio/IVolume.h"
#include "audio/SoundServerMixer.h"

class StreamVolume;
class VolumeSlider;
struct Prompt;

// The questions of the set-up; No gives up every mixer line.
inline constexpr std::string_view kVerifyAudioDevices =
    QT_TRANSLATE_NOOP("Sonalys",
                      "Verify if other Program is using the audio channel or if your audio devices are installed "
                      "properly!\nDo you want to Continue?");
inline constexpr std::string_view kMicInputNotFound =
    QT_TRANSLATE_NOOP("Sonalys", "Mic. Input can´t be found!\nDo You want to Continue?");
// Shown when the record input chosen has no line of its own in the mixer.
inline constexpr std::string_view kCannotDefineInput =
    QT_TRANSLATE_NOOP("Sonalys", "Warning! It´s not Possible to Define the Selected Input!");

class MixerVolumes : public QObject {
    Q_OBJECT
public:
    // Makes the object of a line, not yet enabled; null where that line has no mixer.
    using Factory = std::function<std::unique_ptr<IVolume>(MixerLine line, int input)>;

    explicit MixerVolumes(QObject* parent = nullptr);
    ~MixerVolumes() override;

    // Sets up the master and input lines for `recordInput`, asking whether to go on when one cannot be opened.
    // False when the user gave the mixer up: no line is kept then. A null factory means a program with no mixer.
    bool SetUp(Factory make, int recordInput, Prompt& prompt);
    // The input line made anew for `recordInput`; false, with no input line kept, when it cannot be opened.
    bool SetInput(int recordInput);
    // The wave line, over the playback stream's own volume.
    void SetPlaybackStream(StreamVolume& stream);

    // The line's object, or null when the line is missing.
    IVolume* line(MixerLine which) const { return m_lines[index(which)].get(); }

    // Ties a slider to a line for the slider's life: it takes the line's range and level, and again whenever the
    // line is made anew, is disabled while the line is missing, writes the level the user moves it to, and follows a
    // change made elsewhere.
    void attachSlider(MixerLine which, VolumeSlider& slider);

signals:
    void levelChanged(MixerLine line, int value);
    // The line's object was made anew or dropped.
    void lineReplaced(MixerLine line);

private:
    static std::size_t index(MixerLine which) { return static_cast<std::size_t>(which); }
    // Keeps the object if it opens, and passes its outside changes on.
    bool adopt(MixerLine which, std::unique_ptr<IVolume> volume);
    void showLine(MixerLine which, VolumeSlider& slider) const;

    Factory m_make;
    std::array<std::unique_ptr<IVolume>, 3> m_lines;
};
