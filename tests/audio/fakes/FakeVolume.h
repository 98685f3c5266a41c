// A scripted mixer line: the test decides whether the line exists, its range and its channels' levels, and sees
// every level written. A change from outside is made with changeFromOutside.
#pragma once

#include <vector>

#include "audio/IVolume.h"

class FakeVolume : public IVolume {
public:
    bool found = true;
    int minimum = 0;
    int maximum = 65535;
    std::vector<int> levels{0};            // one per channel
    std::vector<std::vector<int>> writes;  // every level set, channel by channel
    bool readFails = false;

    FakeVolume() = default;
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
    std::vector<int> readLevels() override { return readFails ? std::vector<int>{} : levels; }
    bool writeLevels(const std::vector<int>& channelLevels) override {
        writes.push_back(channelLevels);
        levels = channelLevels;
        return true;
    }
};
