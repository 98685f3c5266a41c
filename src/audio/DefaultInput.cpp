#include "audio/DefaultInput.h"

#include <QMediaDevices>
#include <string>

#if defined(SONALYS_WITH_PULSE)
#include "audio/PulseMixer.h"
#endif

QAudioDevice defaultCaptureDevice() {
    const QAudioDevice qtChoice = QMediaDevices::defaultAudioInput();
#if defined(SONALYS_WITH_PULSE)
    if (qtChoice.isDefault()) return qtChoice;
    // With no server to ask, or no source of the name it gives, Qt's own choice stands.
    PulseMixer server;
    if (!server.connect()) return qtChoice;
    const std::optional<std::string> wanted = server.defaultName(PulseMixer::Device::Source);
    if (!wanted) return qtChoice;
    for (const QAudioDevice& device : QMediaDevices::audioInputs())
        if (device.id().toStdString() == *wanted) return device;
#endif
    return qtChoice;
}
