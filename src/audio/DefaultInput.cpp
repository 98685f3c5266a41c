#include "audio/DefaultInput.h"

#include <QMediaDevices>
#include <string>

#if defined(SONALYS_WITH_PULSE)
#include <pulse/pulseaudio.h>

#include <chrono>
#include <thread>
#endif

namespace {

#if defined(SONALYS_WITH_PULSE)

// A server that has not answered by then is taken as absent: Qt's own choice stands.
constexpr auto kServerPatience = std::chrono::seconds(2);

// Runs `mainloop` until `done` says so, the context fails or the patience runs out.
template <class Done>
bool runUntil(pa_mainloop* mainloop, pa_context* context, Done done) {
    const auto deadline = std::chrono::steady_clock::now() + kServerPatience;
    while (!done()) {
        const pa_context_state_t state = pa_context_get_state(context);
        if (!PA_CONTEXT_IS_GOOD(state) || std::chrono::steady_clock::now() > deadline) return false;
        if (pa_mainloop_iterate(mainloop, 0, nullptr) == 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

// The name of the server's default source, empty when there is no PulseAudio server to ask.
std::string serverDefaultSource() {
    pa_mainloop* mainloop = pa_mainloop_new();
    if (!mainloop) return {};
    pa_context* context = pa_context_new(pa_mainloop_get_api(mainloop), "sonalys");
    std::string name;
    bool answered = false;
    if (context && pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0 &&
        runUntil(mainloop, context, [&] { return pa_context_get_state(context) == PA_CONTEXT_READY; })) {
        struct Answer {
            std::string* name;
            bool* answered;
        } answer{&name, &answered};
        auto onInfo = [](pa_context*, const pa_server_info* info, void* user) {
            auto* a = static_cast<Answer*>(user);
            if (info && info->default_source_name) *a->name = info->default_source_name;
            *a->answered = true;
        };
        if (pa_operation* op = pa_context_get_server_info(context, onInfo, &answer)) {
            runUntil(mainloop, context, [&] { return answered; });
            pa_operation_unref(op);
        }
    }
    if (context) {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
    pa_mainloop_free(mainloop);
    return name;
}

#endif

}  // namespace

QAudioDevice defaultCaptureDevice() {
    const QAudioDevice qtChoice = QMediaDevices::defaultAudioInput();
#if defined(SONALYS_WITH_PULSE)
    if (qtChoice.isDefault()) return qtChoice;
    const std::string wanted = serverDefaultSource();
    if (wanted.empty()) return qtChoice;
    for (const QAudioDevice& device : QMediaDevices::audioInputs())
        if (device.id().toStdString() == wanted) return device;
#endif
    return qtChoice;
}
