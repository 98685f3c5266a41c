// The levels that the desktop's sound server keeps for its default devices: the speakers' master level
// (`CVolumeOutMaster`) and the level of the recording input (`CVolumeInXXX`). A change made by another program comes
// back through the callback on the user-interface thread.
#pragma once

#include <QObject>
#include <cstdint>
#include <memory>

#include "audio/IVolume.h"
#include "audio/PulseMixer.h"
#include "audio/SoundServerMixer.h"

// The sliders' scale for every line: 0 to 65535, as sound cards' own mixers count.
inline constexpr int kMixerMaximum = 65535;
// The server counts 0 to 0x10000 for full volume and above for amplification, which the sliders show as full.
int mixerLevelFromServer(std::uint32_t volume);
std::uint32_t serverVolumeFromMixer(int level);

class PulseDeviceVolume : public IVolume {
public:
    ~PulseDeviceVolume() override;

protected:
    PulseDeviceVolume(PulseMixer::Device device, int input);

    bool openLine(LineInfo& info) override;
    void closeLine() override;
    std::vector<int> readLevels() override;
    bool writeLevels(const std::vector<int>& levels) override;

private:
    bool hasLine(const PulseMixer::DeviceState& state) const;

    PulseMixer::Device m_device;
    int m_input;                          // the record input sought, or -1 for the speakers
    std::unique_ptr<QObject> m_receiver;  // lives on the user-interface thread: changes are posted to it
    std::unique_ptr<PulseMixer> m_mixer;  // gone before the receiver, so nothing is posted to a dead one
    std::uint32_t m_index = 0;
};

class CVolumeOutMaster : public PulseDeviceVolume {
public:
    CVolumeOutMaster() : PulseDeviceVolume(PulseMixer::Device::Sink, -1) {}
};

// The default input, for the microphone or the line input. When the card tells which connectors it has, the
// line is found only if the wanted kind is among them; a device with no connectors listed serves for either.
class CVolumeInXXX : public PulseDeviceVolume {
public:
    explicit CVolumeInXXX(int input) : PulseDeviceVolume(PulseMixer::Device::Source, input) {}
};
