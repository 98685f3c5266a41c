#include "audio/DeviceEventQueue.h"

#include <QMetaObject>
#include <algorithm>

void DeviceEventQueue::post(Kind kind, std::function<void()> event) {
    m_events.push_back({kind, std::move(event)});
    QMetaObject::invokeMethod(
        &m_context, [this] { deliverOne(); }, Qt::QueuedConnection);
}

void DeviceEventQueue::dropBufferEvents() {
    std::erase_if(m_events, [](const Entry& entry) { return entry.kind == Kind::Buffer; });
}

void DeviceEventQueue::deliverOne() {
    // One delivery was queued per post; a withdrawn event leaves a delivery with nothing to do.
    if (m_events.empty()) return;
    std::function<void()> event = std::move(m_events.front().event);
    m_events.pop_front();
    event();
}
