// The playback engine: sounds the loaded recording, a selection of it or a paused capture through the default sound
// output. It owns the device's open state and the headers of one-shot plays; the chunked plays and their counters
// live in ChunkedPlayback. Like the capture engine it knows no window: the device's events go to the view, which
// hands each header back through the playback functions and tells the engine when the device has closed.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include <QtGlobal>

#include "audio/WaveDevice.h"

class QEventLoop;
struct Prompt;
struct WaveFormat;

inline constexpr std::string_view kCannotOpenPlayback =
    QT_TRANSLATE_NOOP("Sonalys", "It was not possible to open the Playback channel!");
inline constexpr std::string_view kErrorPlayingSoundFile = QT_TRANSLATE_NOOP("Sonalys", "Error Playing Sound File!");

class WavePlayer {
public:
    static constexpr int kSingleHeaderCount = 100;

    WavePlayer(WaveOutDevice& device, Prompt& prompt);
    ~WavePlayer();  // stops a play still running: the headers it was given must still be there
    WavePlayer(const WavePlayer&) = delete;
    WavePlayer& operator=(const WavePlayer&) = delete;

    // Opens the device for `format` with `window` hearing its events (the engine itself when null). A device still
    // open is stopped and awaited first; 1 if it is open afterwards, 0 after telling the user.
    int Open(const WaveFormat& format, WaveOutEvents* window);
    void Pause();
    void Restart();
    void Reset();       // every queued header comes back; none is replaced while resetting
    void HardReset();   // Reset, and every header that comes back resets the device again
    void WaitClosed();  // runs the event loop until the device has closed, or the application quits
    int Close();
    // Plays `bytes` bytes from `data` as one header. 1 when it was queued.
    int PlayOnce(const std::uint8_t* data, std::uint32_t bytes);
    void FreeHeaders();

    // The engine's share of the device's events.
    void OnOpened() {}
    void OnClosed();          // frees the one-shot headers; the device counts as closed
    void OnFailed(int code);  // the device stopped working: tell the user and stop for good
    void HeaderFinished();    // a header came back: the next one-shot takes the next slot

    WaveOutDevice& device() noexcept { return m_device; }
    bool deviceOpen() const noexcept { return m_deviceOpen; }  // the program takes an open device as playing
    bool resetting() const noexcept { return m_resetting; }
    bool stopQueue() const noexcept { return m_stopQueue; }
    bool paused() const noexcept { return m_paused; }
    std::uint32_t savedVolume() const noexcept { return m_savedVolume; }
    void SetSavedVolume(std::uint32_t volume) { m_savedVolume = volume; }
    bool comparisonPlaying() const noexcept { return m_comparisonPlaying; }
    void SetComparisonPlaying(bool playing) { m_comparisonPlaying = playing; }
    int singleHeaderIndex() const noexcept { return m_singleHeaderIndex; }

private:
    class OwnEvents;

    WaveOutDevice& m_device;
    Prompt& m_prompt;
    std::unique_ptr<OwnEvents> m_ownEvents;

    bool m_deviceOpen = false;
    bool m_resetting = false;
    bool m_stopQueue = false;  // set by a hard stop and on errors
    bool m_paused = false;
    std::uint32_t m_savedVolume = 0;  // volume to give back when a play ends during a capture
    bool m_comparisonPlaying = false;
    std::array<std::unique_ptr<WaveHeader>, kSingleHeaderCount> m_singleHeaders;
    int m_singleHeaderIndex = 0;  // 0..99, the slot of the next one-shot play
    QEventLoop* m_waitLoop = nullptr;
};
