#include "app/MixerVolumes.h"

#include "audio/CVolumeOutWave.h"
#include "controls/VolumeSlider.h"
#include "store/Prompt.h"

MixerVolumes::MixerVolumes(QObject* parent) : QObject(parent) {}

MixerVolumes::~MixerVolumes() = default;

bool MixerVolumes::adopt(MixerLine which, std::unique_ptr<IVolume> volume) {
    auto& slot = m_lines[index(which)];
    slot.reset();
    const bool opened = volume && volume->Enable() != 0;
    if (opened) {
        volume->SetCallback([this, which](int value) { emit levelChanged(which, value); });
        slot = std::move(volume);
    }
    emit lineReplaced(which);
    return opened;
}

bool MixerVolumes::SetUp(Factory make, int recordInput, Prompt& prompt) {
    m_make = std::move(make);
    if (!m_make) return true;
    const auto giveUp = [this] {
        for (const MixerLine which : {MixerLine::Master, MixerLine::Wave, MixerLine::Input}) adopt(which, nullptr);
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

void MixerVolumes::showLine(MixerLine which, VolumeSlider& slider) const {
    IVolume* volume = line(which);
    if (volume == nullptr) {
        slider.setNoLine();
        return;
    }
    slider.setLine(volume->GetMinimum(), volume->GetMaximum());
    slider.setLevel(volume->GetCurrent());
}

void MixerVolumes::attachSlider(MixerLine which, VolumeSlider& slider) {
    showLine(which, slider);
    connect(this, &MixerVolumes::lineReplaced, &slider, [this, which, &slider](MixerLine replaced) {
        if (replaced == which) showLine(which, slider);
    });
    connect(this, &MixerVolumes::levelChanged, &slider, [which, &slider](MixerLine changed, int value) {
        if (changed == which) slider.setLevel(value);
    });
    connect(&slider, &VolumeSlider::levelMoved, this, [this, which](int level) {
        if (IVolume* volume = line(which)) volume->SetCurrent(level);
    });
}
