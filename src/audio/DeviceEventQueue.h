// The way a device speaks to its owner: each event is posted to the user-interface thread's event loop and delivered
// from its own turn of the loop, in the order posted, so that input and painting run between two buffers. Events not
// yet delivered can be withdrawn, as a closed device must never hand back a buffer its owner has already freed.
#pragma once

#include <QObject>
#include <deque>
#include <functional>

class DeviceEventQueue {
public:
    enum class Kind { Buffer, Other };

    DeviceEventQueue() = default;
    DeviceEventQueue(const DeviceEventQueue&) = delete;
    DeviceEventQueue& operator=(const DeviceEventQueue&) = delete;

    void post(Kind kind, std::function<void()> event);
    void dropBufferEvents();            // withdraws every buffer event not yet delivered
    void clear() { m_events.clear(); }  // withdraws every event
    std::size_t pending() const noexcept { return m_events.size(); }

private:
    void deliverOne();

    struct Entry {
        Kind kind;
        std::function<void()> event;
    };
    QObject m_context;  // pending deliveries die with it
    std::deque<Entry> m_events;
};
