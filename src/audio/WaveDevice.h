// The sound devices as the recording and playback engines see them: a capture device that fills the buffers it is
// given and hands each one back when full, and a playback device that sounds the buffers it is given and hands each
// one back when played. Buffers come back one by one, in the order they were queued, on the user-interface thread;
// a reset hands back every queued buffer at once; a close event follows the last buffer. Any sound system can stand
// behind these two classes: Qt Multimedia for the program, a scripted fake for the tests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <QtGlobal>

struct Prompt;
struct WaveFormat;

// One buffer lent to a device. The engine owns the header and the bytes; the device holds the pointer from the moment
// the buffer is queued until it hands it back with WHDR_DONE set.
struct WaveHeader {
    std::uint8_t* lpData = nullptr;     // the bytes to fill or to sound
    std::uint32_t dwBufferLength = 0;   // size of lpData in bytes
    std::uint32_t dwBytesRecorded = 0;  // capture: bytes filled when handed back; may be 0 after a reset
    std::uintptr_t dwUser = 0;          // free for the engine
    std::uint32_t dwFlags = 0;          // WHDR_ bits below
    std::uint32_t dwLoops = 0;          // kept at 0: no buffer is ever repeated
};

inline constexpr std::uint32_t WHDR_DONE = 0x01;      // the device has handed the buffer back
inline constexpr std::uint32_t WHDR_PREPARED = 0x02;  // prepared, may be queued
inline constexpr std::uint32_t WHDR_INQUEUE = 0x10;   // queued, owned by the device

// Results of every device operation: 0 for success, otherwise one of these codes.
inline constexpr int MMSYSERR_NOERROR = 0;
inline constexpr int MMSYSERR_ERROR = 1;        // unspecified failure
inline constexpr int MMSYSERR_BADDEVICEID = 2;  // there is no such device
inline constexpr int MMSYSERR_ALLOCATED = 4;    // already open
inline constexpr int MMSYSERR_INVALHANDLE = 5;  // the device is not open
inline constexpr int MMSYSERR_NODRIVER = 6;     // the sound system cannot be reached
inline constexpr int MMSYSERR_NOMEM = 7;        // out of memory
inline constexpr int MMSYSERR_INVALPARAM = 11;  // a header without data or length
inline constexpr int MMSYSERR_HANDLEBUSY = 12;  // the device is busy with another call
inline constexpr int WAVERR_BADFORMAT = 32;     // the format is refused
inline constexpr int WAVERR_STILLPLAYING = 33;  // buffers are still queued
inline constexpr int WAVERR_UNPREPARED = 34;    // the header was not prepared
inline constexpr int WAVERR_DEVICELOST = 35;    // the device stopped working while open

// The sound system's own sentence for a result code, in English, or in the language of `prompt`'s screen.
std::string waveErrorText(int code);
std::string waveErrorText(int code, const Prompt& prompt);

// Shown by either engine when a device refuses to take back a header it has handed back.
inline constexpr std::string_view kErrorFreeingHeader = QT_TRANSLATE_NOOP("Sonalys", "Error Freeing Header!");

// Who hears what a capture device reports. Every call arrives on the user-interface thread, each from its own turn of
// the event loop, in the order the device produced them.
class WaveInEvents {
public:
    virtual ~WaveInEvents() = default;
    virtual void waveInOpened() = 0;
    virtual void waveInData(WaveHeader& header) = 0;  // a buffer handed back, WHDR_DONE set
    virtual void waveInClosed() = 0;                  // after a successful close; no buffer follows
    virtual void waveInFailed(int code) = 0;          // the device stopped delivering; queued buffers wait for a reset
};

class WaveInDevice {
public:
    virtual ~WaveInDevice() = default;
    // Opens the default capture device for `format`; `events` hears from it until its close event.
    virtual int open(const WaveFormat& format, WaveInEvents& events) = 0;
    virtual int prepareHeader(WaveHeader& header) = 0;
    virtual int unprepareHeader(WaveHeader& header) = 0;  // WAVERR_STILLPLAYING while queued
    virtual int addBuffer(WaveHeader& header) = 0;        // queue behind the others
    virtual int start() = 0;                              // fill the queued buffers from now on
    virtual int reset() = 0;                              // stop filling, hand back every queued buffer
    virtual int close() = 0;                              // WAVERR_STILLPLAYING while buffers are queued
    virtual bool isOpen() const = 0;
};

// Who hears what a playback device reports; delivered like WaveInEvents.
class WaveOutEvents {
public:
    virtual ~WaveOutEvents() = default;
    virtual void waveOutOpened() = 0;
    virtual void waveOutDone(WaveHeader& header) = 0;  // a buffer sounded (or dropped by a reset), WHDR_DONE set
    virtual void waveOutClosed() = 0;
    virtual void waveOutFailed(int code) = 0;  // the device stopped sounding; queued buffers wait for a reset
};

class WaveOutDevice {
public:
    virtual ~WaveOutDevice() = default;
    virtual int query(const WaveFormat& format) = 0;  // would open() accept the format? Opens nothing.
    virtual int open(const WaveFormat& format, WaveOutEvents& events) = 0;
    virtual int prepareHeader(WaveHeader& header) = 0;
    virtual int unprepareHeader(WaveHeader& header) = 0;  // WAVERR_STILLPLAYING while queued
    virtual int write(WaveHeader& header) = 0;            // queue for sounding behind the others
    virtual int pause() = 0;
    virtual int restart() = 0;  // go on after pause()
    virtual int reset() = 0;    // stop at once, hand back every queued buffer
    virtual int close() = 0;    // WAVERR_STILLPLAYING while buffers are queued
    virtual bool isOpen() const = 0;
};
