// A connection to the desktop's sound server (PulseAudio, or PipeWire through its PulseAudio interface) to read and
// set the level of its default output or input device and hear when another program changes it. The server's
// client library runs its own thread; each call here waits for the server's answer, and a change is reported on
// that thread.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

struct pa_threaded_mainloop;
struct pa_context;
struct pa_operation;

class PulseMixer {
public:
    enum class Device { Sink, Source };  // the speakers, or the recording input

    struct DeviceState {
        std::uint32_t index = 0;
        std::vector<std::uint32_t> volumes;  // one a channel; the server's full volume is 0x10000
        std::vector<std::string> ports;      // the card's connectors behind the device, if it tells them
    };
    using Volumes = std::vector<std::uint32_t>;
    using ChangeHandler = std::function<void(const Volumes&)>;

    PulseMixer();
    ~PulseMixer();
    PulseMixer(const PulseMixer&) = delete;
    PulseMixer& operator=(const PulseMixer&) = delete;

    // False when no server answers.
    bool connect();
    // The server's default device of that kind, or nothing.
    std::optional<DeviceState> defaultDevice(Device device);
    // The name the server gives its default device of that kind, or nothing.
    std::optional<std::string> defaultName(Device device);
    bool setVolumes(Device device, std::uint32_t index, const Volumes& volumes);
    // From now on `changed` is called on the server's thread with the device's volumes each time they change.
    bool watch(Device device, std::uint32_t index, ChangeHandler changed);

private:
    struct Callbacks;                     // the entry points the client library calls, on its thread
    bool await(pa_operation* operation);  // with the lock held
    std::optional<std::string> defaultDeviceName(Device device);

    pa_threaded_mainloop* m_loop = nullptr;
    pa_context* m_context = nullptr;
    bool m_running = false;
    Device m_watched = Device::Sink;
    std::uint32_t m_watchedIndex = 0;
    ChangeHandler m_changed;
};
