// A scripted mixer line: the test sets whether it exists, its range and channels' levels, and sees every level written.
// ScriptedMixer makes such lines for the frame, the input line only for the inputs it lists.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "audio/IVolume.h"
#include "audio/SoundServerMixer.h"

class FakeVolume : public IVolume {
public:
    bool found = true;
    int minimum = 0;
    int maximum = 65535;
    std::vector<int> levels{0};            // one per channel
    std::vector<std::vector<int>> writes;  // every level set, channel by channel

    FakeVolume(int minimumLevel, int maximumLevel, std::vector<int> channelLevels)
        : minimum(minimumLevel), maximum(maximumLevel), levels(std::move(channelLevels)) {}

    void changeFromOutside(int value) {
        levels.assign(levels.size(), value);
        levelChangedOutside(value);
    }

protected:
    bool openLine(LineInfo& info) override {
        info = {minimum, maximum, static_cast<int>(levels.size())};
        return found;
    }
    std::vector<int> readLevels() override { return levels; }
    bool writeLevels(const std::vector<int>& channelLevels) override {
        writes.push_back(channelLevels);
        levels = channelLevels;
        return true;
    }
};

// Two-channel lines from 0 to 70 at level 20; the last master and input lines made stay in view.
struct ScriptedMixer {
    explicit ScriptedMixer(bool master = true, std::vector<int> inputLines = {0, 1})
        : masterFound(master), inputs(std::move(inputLines)) {}

    bool masterFound;
    std::vector<int> inputs;
    std::vector<int> inputsMade;  // the record input of every input line asked for
    FakeVolume* master = nullptr;
    FakeVolume* input = nullptr;

    std::function<std::unique_ptr<IVolume>(MixerLine, int)> factory() {
        return [this](MixerLine line, int recordInput) -> std::unique_ptr<IVolume> {
            auto volume = std::make_unique<FakeVolume>(0, 70, std::vector<int>{20, 20});
            if (line == MixerLine::Master) {
                volume->found = masterFound;
                master = volume.get();
            } else if (line == MixerLine::Input) {
                volume->found = std::find(inputs.begin(), inputs.end(), recordInput) != inputs.end();
                inputsMade.push_back(recordInput);
                input = volume->found ? volume.get() : nullptr;
            }
            return volume;
        };
    }
};
