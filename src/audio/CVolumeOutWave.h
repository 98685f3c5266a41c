// The level of the program's own playback: the volume of our output stream alone, whatever the speakers' master
// level is. Only the program sets it, so no change ever comes from outside.
#pragma once

#include "audio/IVolume.h"

// What the wave line needs of the playback stream: its volume, 0.0 silent to 1.0 full, kept across streams.
class StreamVolume {
public:
    virtual ~StreamVolume() = default;
    virtual double streamVolume() const = 0;
    virtual void setStreamVolume(double volume) = 0;
};

class CVolumeOutWave : public IVolume {
public:
    static constexpr int kMaximum = 65535;  // the mixer scale of the other lines, so all sliders step alike

    explicit CVolumeOutWave(StreamVolume& stream) : m_stream(stream) {}

protected:
    bool openLine(LineInfo& info) override;
    std::vector<int> readLevels() override;
    bool writeLevels(const std::vector<int>& levels) override;

private:
    StreamVolume& m_stream;
};
