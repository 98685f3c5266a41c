// One level of the sound card that the program sets from its own sliders: the speakers' master level, the level of
// our own playback, or the level of the recording line. The caller does not know which mixer stands behind it; each
// line keeps its range, its channel count and the last level read, and tells its client when someone else changes
// the level.
#pragma once

#include <functional>
#include <vector>

class IVolume {
public:
    // Called with the new level when it is changed from outside the program, on the user-interface thread.
    using Callback = std::function<void(int value)>;

    virtual ~IVolume() = default;
    IVolume(const IVolume&) = delete;
    IVolume& operator=(const IVolume&) = delete;

    // Opens the line and reads its range and channels: 1 when the line was found, 0 otherwise.
    virtual int Enable();
    virtual void Disable();
    virtual bool IsAvailable() const { return m_available; }
    virtual int GetMinimum() const { return m_minimum; }
    virtual int GetMaximum() const { return m_maximum; }
    // The level of the first channel, or -1 when the line is absent or cannot be read.
    virtual int GetCurrent();
    // Every channel gets the same level; a value outside minimum to maximum is ignored.
    virtual void SetCurrent(int value);
    virtual void SetCallback(Callback callback) { m_callback = std::move(callback); }

    bool enabled() const { return m_enabled; }
    int channels() const { return m_channels; }

protected:
    IVolume() = default;

    // What a mixer must give. openLine fills minimum, maximum and channels and answers whether the line exists;
    // readLevels answers one level a channel (empty when it cannot); writeLevels takes one a channel.
    struct LineInfo {
        int minimum = 0;
        int maximum = 0;
        int channels = 0;
    };
    virtual bool openLine(LineInfo& info) = 0;
    virtual void closeLine() {}
    virtual std::vector<int> readLevels() = 0;
    virtual bool writeLevels(const std::vector<int>& levels) = 0;

    // A mixer calls this, on the user-interface thread, when the level has been changed from outside.
    void levelChangedOutside(int value);

private:
    bool m_enabled = false;
    bool m_available = false;
    int m_minimum = 0;
    int m_maximum = 0;
    int m_channels = 0;
    int m_current = -1;
    Callback m_callback;
};
