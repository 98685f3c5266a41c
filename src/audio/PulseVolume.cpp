#include "audio/PulseVolume.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace {

constexpr double kServerFull = 0x10000;  // the server's normal, unamplified volume

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

}  // namespace

int mixerLevelFromServer(std::uint32_t volume) {
    return static_cast<int>(
        std::min<long>(kMixerMaximum, std::lround(static_cast<double>(volume) * kMixerMaximum / kServerFull)));
}

std::uint32_t serverVolumeFromMixer(int level) {
    return static_cast<std::uint32_t>(std::lround(level * kServerFull / kMixerMaximum));
}

PulseDeviceVolume::PulseDeviceVolume(PulseMixer::Device device, int input) : m_device(device), m_input(input) {}

PulseDeviceVolume::~PulseDeviceVolume() { m_mixer.reset(); }

bool PulseDeviceVolume::hasLine(const PulseMixer::DeviceState& state) const {
    if (m_input < 0 || state.ports.empty()) return true;
    const char* kind = m_input == kMicrophoneInput ? "mic" : "line";
    return std::any_of(state.ports.begin(), state.ports.end(),
                       [kind](const std::string& port) { return lowerCase(port).find(kind) != std::string::npos; });
}

bool PulseDeviceVolume::openLine(LineInfo& info) {
    m_mixer.reset();  // an earlier connection may still post to the receiver it had
    m_receiver = std::make_unique<QObject>();
    m_mixer = std::make_unique<PulseMixer>();
    const auto state = m_mixer->connect() ? m_mixer->defaultDevice(m_device) : std::nullopt;
    if (!state || state->volumes.empty() || !hasLine(*state)) {
        m_mixer.reset();
        return false;
    }
    m_index = state->index;
    info = {0, kMixerMaximum, static_cast<int>(state->volumes.size())};
    // Heard on the server's thread, handed over to ours.
    m_mixer->watch(m_device, m_index, [this, receiver = m_receiver.get()](const PulseMixer::Volumes& volumes) {
        if (volumes.empty()) return;
        const int level = mixerLevelFromServer(volumes.front());
        QMetaObject::invokeMethod(
            receiver, [this, level] { levelChangedOutside(level); }, Qt::QueuedConnection);
    });
    return true;
}

void PulseDeviceVolume::closeLine() { m_mixer.reset(); }

std::vector<int> PulseDeviceVolume::readLevels() {
    if (!m_mixer) return {};
    const auto state = m_mixer->defaultDevice(m_device);
    if (!state || state->index != m_index) return {};
    std::vector<int> levels;
    for (const std::uint32_t volume : state->volumes) levels.push_back(mixerLevelFromServer(volume));
    return levels;
}

bool PulseDeviceVolume::writeLevels(const std::vector<int>& levels) {
    if (!m_mixer) return false;
    PulseMixer::Volumes volumes;
    for (const int level : levels) volumes.push_back(serverVolumeFromMixer(level));
    return m_mixer->setVolumes(m_device, m_index, volumes);
}

std::unique_ptr<IVolume> makeSoundServerVolume(MixerLine line, int input) {
    if (line == MixerLine::Master) return std::make_unique<CVolumeOutMaster>();
    if (line == MixerLine::Input) return std::make_unique<CVolumeInXXX>(input);
    return nullptr;
}
