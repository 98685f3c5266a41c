#include "app/MixerVolumes.h"

#include "audio/CVolumeOutWave.h"
#include "store/Prompt.h"

MixerVolumes::MixerVolumes(QObject* parent) : QObject(parent) {}

MixerVolumes::~MixerVolumes() = default;

bool MixerVolumes::adopt(MixerLine which, std::unique_ptr<IVolume> volume) {
    auto& slot = m_lines[index(which)];
    slot.reset();
    if (!volume || volume->Enable() == 0) return false;
    volume->SetCallback([this, which](int value) { emit levelChanged(which, value); });
    slot = std::move(volume);
    return true;
}

bool MixerVolumes::SetUp(Factory make, int recordInput, Prompt& prompt) {
    m_make = std::move(make);
    if (!m_make) return true;
    const auto giveUp = [this] {
        for (auto& volume : m_lines) volume.reset();
        return false;
    };
    std::unique_ptr<IVolume> master = m_make(MixerLine::Master, recordInput);
    if (!master) return true;  // this build knows no mixer: there is nothing to set up and nothing to ask
    if (!adopt(MixerLine::Master, std::move(master))) {
        // No master level means the mixer was not reached at all: one question says so, the input is not sought.
        return prompt.askYesNo(kVerifyAudioDevices) || giveUp();
    }
    if (!SetInput(recordInput) && !prompt.askYesNo(kMicInputNotFound)) return giveUp();
    return true;
}

bool MixerVolumes::SetInput(int recordInput) {
    return m_make && adopt(MixerLine::Input, m_make(MixerLine::Input, recordInput));
}

void MixerVolumes::SetPlaybackStream(StreamVolume& stream) {
    adopt(MixerLine::Wave, std::make_unique<CVolumeOutWave>(stream));
}
