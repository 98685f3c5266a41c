#include "audio/PulseMixer.h"

#include <pulse/pulseaudio.h>

#include <algorithm>

namespace {

class LoopLock {
public:
    explicit LoopLock(pa_threaded_mainloop* loop) : m_loop(loop) { pa_threaded_mainloop_lock(m_loop); }
    ~LoopLock() { pa_threaded_mainloop_unlock(m_loop); }
    LoopLock(const LoopLock&) = delete;
    LoopLock& operator=(const LoopLock&) = delete;

private:
    pa_threaded_mainloop* m_loop;
};

pa_cvolume toCVolume(const PulseMixer::Volumes& volumes) {
    pa_cvolume cv;
    pa_cvolume_init(&cv);
    cv.channels = static_cast<std::uint8_t>(std::min<std::size_t>(volumes.size(), PA_CHANNELS_MAX));
    for (std::uint8_t c = 0; c < cv.channels; ++c) cv.values[c] = volumes[c];
    return cv;
}

PulseMixer::Volumes fromCVolume(const pa_cvolume& cv) { return {cv.values, cv.values + cv.channels}; }

// What a waiting call hands to its answer: the loop to wake, and where the answer goes.
template <class Answer>
struct Pending {
    pa_threaded_mainloop* loop;
    Answer answer{};
};

template <class Info>
PulseMixer::DeviceState toState(const Info& info) {
    PulseMixer::DeviceState state;
    state.index = info.index;
    state.volumes = fromCVolume(info.volume);
    for (std::uint32_t i = 0; i < info.n_ports; ++i) state.ports.emplace_back(info.ports[i]->name);
    return state;
}

template <class Info>
void onDeviceInfo(pa_context*, const Info* info, int endOfList, void* data) {
    auto* pending = static_cast<Pending<std::optional<PulseMixer::DeviceState>>*>(data);
    if (endOfList == 0 && info != nullptr) pending->answer = toState(*info);
    pa_threaded_mainloop_signal(pending->loop, 0);
}

void onServerInfo(pa_context*, const pa_server_info* info, void* data) {
    auto* pending = static_cast<Pending<std::optional<std::pair<std::string, std::string>>>*>(data);
    if (info != nullptr) {
        pending->answer.emplace(info->default_sink_name ? info->default_sink_name : "",
                                info->default_source_name ? info->default_source_name : "");
    }
    pa_threaded_mainloop_signal(pending->loop, 0);
}

void onSuccess(pa_context*, int success, void* data) {
    auto* pending = static_cast<Pending<bool>*>(data);
    pending->answer = success != 0;
    pa_threaded_mainloop_signal(pending->loop, 0);
}

}  // namespace

struct PulseMixer::Callbacks {
    static void onContextState(pa_context*, void* self) {
        pa_threaded_mainloop_signal(static_cast<PulseMixer*>(self)->m_loop, 0);
    }

    // A device changed: its volumes are asked for, and the answer goes to the handler. Nothing may wait here, on
    // the library's own thread.
    static void onEvent(pa_context* context, pa_subscription_event_type_t event, std::uint32_t index, void* data) {
        auto* self = static_cast<PulseMixer*>(data);
        const auto facility = event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK;
        const auto kind = event & PA_SUBSCRIPTION_EVENT_TYPE_MASK;
        const auto watched =
            self->m_watched == Device::Sink ? PA_SUBSCRIPTION_EVENT_SINK : PA_SUBSCRIPTION_EVENT_SOURCE;
        if (facility != watched || kind != PA_SUBSCRIPTION_EVENT_CHANGE || index != self->m_watchedIndex) return;
        pa_operation* operation =
            self->m_watched == Device::Sink
                ? pa_context_get_sink_info_by_index(context, index, &onWatchedInfo<pa_sink_info>, self)
                : pa_context_get_source_info_by_index(context, index, &onWatchedInfo<pa_source_info>, self);
        if (operation != nullptr) pa_operation_unref(operation);
    }

    template <class Info>
    static void onWatchedInfo(pa_context*, const Info* info, int endOfList, void* data) {
        auto* self = static_cast<PulseMixer*>(data);
        if (endOfList == 0 && info != nullptr && self->m_changed) self->m_changed(fromCVolume(info->volume));
    }
};

PulseMixer::PulseMixer() : m_loop(pa_threaded_mainloop_new()) {}

PulseMixer::~PulseMixer() {
    if (m_loop == nullptr) return;
    if (m_running) pa_threaded_mainloop_lock(m_loop);
    if (m_context != nullptr) {
        pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
        pa_context_set_state_callback(m_context, nullptr, nullptr);
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
    }
    if (m_running) {
        pa_threaded_mainloop_unlock(m_loop);
        pa_threaded_mainloop_stop(m_loop);
    }
    pa_threaded_mainloop_free(m_loop);
}

bool PulseMixer::connect() {
    if (m_loop == nullptr || m_running) return false;
    if (pa_threaded_mainloop_start(m_loop) < 0) return false;
    m_running = true;
    LoopLock lock(m_loop);
    m_context = pa_context_new(pa_threaded_mainloop_get_api(m_loop), "Sonalys");
    if (m_context == nullptr) return false;
    pa_context_set_state_callback(m_context, &Callbacks::onContextState, this);
    // A missing server is an answer in itself: none is started for us.
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) return false;
    for (;;) {
        const pa_context_state_t state = pa_context_get_state(m_context);
        if (state == PA_CONTEXT_READY) return true;
        if (!PA_CONTEXT_IS_GOOD(state)) return false;
        pa_threaded_mainloop_wait(m_loop);
    }
}

bool PulseMixer::await(pa_operation* operation) {
    if (operation == nullptr) return false;
    while (pa_operation_get_state(operation) == PA_OPERATION_RUNNING) {
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context))) break;
        pa_threaded_mainloop_wait(m_loop);
    }
    const bool done = pa_operation_get_state(operation) == PA_OPERATION_DONE;
    pa_operation_unref(operation);
    return done;
}

std::optional<std::string> PulseMixer::defaultDeviceName(Device device) {
    Pending<std::optional<std::pair<std::string, std::string>>> pending{m_loop};
    if (!await(pa_context_get_server_info(m_context, &onServerInfo, &pending)) || !pending.answer) return {};
    const std::string& name = device == Device::Sink ? pending.answer->first : pending.answer->second;
    if (name.empty()) return {};
    return name;
}

std::optional<std::string> PulseMixer::defaultName(Device device) {
    if (m_context == nullptr) return {};
    LoopLock lock(m_loop);
    return defaultDeviceName(device);
}

std::optional<PulseMixer::DeviceState> PulseMixer::defaultDevice(Device device) {
    if (m_context == nullptr) return {};
    LoopLock lock(m_loop);
    const auto name = defaultDeviceName(device);
    if (!name) return {};
    Pending<std::optional<DeviceState>> pending{m_loop};
    pa_operation* operation =
        device == Device::Sink
            ? pa_context_get_sink_info_by_name(m_context, name->c_str(), &onDeviceInfo<pa_sink_info>, &pending)
            : pa_context_get_source_info_by_name(m_context, name->c_str(), &onDeviceInfo<pa_source_info>, &pending);
    if (!await(operation)) return {};
    return pending.answer;
}

bool PulseMixer::setVolumes(Device device, std::uint32_t index, const Volumes& volumes) {
    if (m_context == nullptr || volumes.empty()) return false;
    LoopLock lock(m_loop);
    const pa_cvolume cv = toCVolume(volumes);
    Pending<bool> pending{m_loop};
    pa_operation* operation = device == Device::Sink
                                  ? pa_context_set_sink_volume_by_index(m_context, index, &cv, &onSuccess, &pending)
                                  : pa_context_set_source_volume_by_index(m_context, index, &cv, &onSuccess, &pending);
    return await(operation) && pending.answer;
}

bool PulseMixer::watch(Device device, std::uint32_t index, ChangeHandler changed) {
    if (m_context == nullptr) return false;
    LoopLock lock(m_loop);
    m_watched = device;
    m_watchedIndex = index;
    m_changed = std::move(changed);
    pa_context_set_subscribe_callback(m_context, &Callbacks::onEvent, this);
    const auto mask = device == Device::Sink ? PA_SUBSCRIPTION_MASK_SINK : PA_SUBSCRIPTION_MASK_SOURCE;
    Pending<bool> pending{m_loop};
    return await(pa_context_subscribe(m_context, mask, &onSuccess, &pending)) && pending.answer;
}
