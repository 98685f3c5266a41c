// A play cut into headers: the first 1500 samples go out at once so that sound starts without delay, the rest
// follow in chunks of the Update Rate, so that the view's cursor and live display move at that rate. At most 100
// headers wait in the device; each one that comes back brings the next. The view holds one ChunkedPlayback, calls
// PlayChunked to begin and, for every header the device hands back, PlayHeaderBack before its drawing and
// PlayHeaderDone after it.
//
// Played this way a file ends one chunk short: the samples after the last whole chunk, and with exactly one chunk
// the last 1500 samples, are never sounded. This is the program's behaviour and is kept.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include <QtGlobal>

#include "audio/WaveDevice.h"

class WavePlayer;
struct Prompt;

inline constexpr std::string_view kFileTooShort =
    QT_TRANSLATE_NOOP("Sonalys", "File needs to have at least 0.5 seconds!");
inline constexpr std::string_view kErrorWaveOutPrepareHeader =
    QT_TRANSLATE_NOOP("Sonalys", "Error WaveOutPrepareHeader");
inline constexpr std::string_view kErrorLoadingBuffer = QT_TRANSLATE_NOOP("Sonalys", "Error - Loading Buffer");

inline constexpr int kFirstHeaderSamples = 1500;
inline constexpr int kMaxQueuedHeaders = 100;  // bounds the device's memory on long files; a zoomed play ignores it

// What the view's state does to the cutting.
struct PlayLayout {
    bool fileSpectrogramMode = false;
    bool zoomed = false;
    int graphWidth = 0;  // pixels
};

// The counters of a play, shared by the view and the functions below.
struct ChunkedPlayback {
    std::vector<WaveHeader> ChunkTable;  // one header per chunk; freed when the device closes
    std::int64_t chunkCount = 0;         // headers of the whole play
    float chunkSize = 0.0f;              // samples of every chunk but the first
    std::int64_t nextOffset = 0;         // bytes from the start of the samples to the next chunk to submit
    std::int64_t bytePosition = 0;       // bytes played so far
    std::int64_t savedBytePosition = 0;  // byte position kept while a paused capture is played
    std::int64_t submitted = 0;          // headers given to the device
    std::int64_t finished = 0;           // headers come back
    float cursorPosition = 0.0f;         // pixels from the graph's left edge, 0 before the first step
    bool cursorArmed = true;             // false for the first step after a zoomed play of a paused capture
    bool oneShot = false;                // a single header: no cursor, no live display
    bool rateChanging = false;           // a change of Update Rate is restarting the play

    void clearCounters();  // before a new play: offsets, positions and header counts back to 0
};

// Cuts `sampleCount` samples from `samples` into headers of `chunkSamples` (or, zoomed on the spectrogram page, one
// step per two pixels), queues the first at once and then up to 100 more. The device must be open. 1 when the play
// runs, 0 after telling the user; the caller then closes the device.
int PlayChunked(ChunkedPlayback& play, WavePlayer& player, const std::int16_t* samples, std::int64_t sampleCount,
                std::int64_t chunkSamples, const PlayLayout& layout, Prompt& prompt);

// Queues the next chunk, `base` being the start of all `sampleCount` samples. 1 when a header went to the device.
int SubmitNext(ChunkedPlayback& play, WavePlayer& player, const std::int16_t* base, std::int64_t sampleCount,
               std::uintptr_t user, Prompt& prompt);

// A header came back: counts it and, unless a rate change or a one-shot play, moves the byte position past it.
// Gives the byte position at which its sound began, for the live display.
std::int64_t PlayHeaderBack(ChunkedPlayback& play, WavePlayer& player, const WaveHeader& header);

// After the view's drawing: takes the header back from the device, queues the next chunk while the play goes on, and
// closes the device once every header has come back.
void PlayHeaderDone(ChunkedPlayback& play, WavePlayer& player, WaveHeader& header, const std::int16_t* base,
                    std::int64_t sampleCount, Prompt& prompt);

// The device has closed: the headers go.
void PlayClosed(ChunkedPlayback& play);
