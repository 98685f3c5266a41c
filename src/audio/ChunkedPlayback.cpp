#include "audio/ChunkedPlayback.h"

#include <algorithm>

#include "audio/WavePlayer.h"
#include "base/Assert.h"
#include "store/Prompt.h"

namespace {

std::uint8_t* bytesOf(const std::int16_t* samples) {
    // Headers are only read by the playback device.
    return reinterpret_cast<std::uint8_t*>(const_cast<std::int16_t*>(samples));
}

// Chunk count and size of every chunk but the first. With no whole chunk past the first 1500 samples, the play is
// a single header of all the samples.
void cutIntoChunks(ChunkedPlayback& play, std::int64_t sampleCount, std::int64_t chunk) {
    const std::int64_t count = chunk > 0 ? (sampleCount - kFirstHeaderSamples) / chunk : 0;
    if (count < 1) {
        play.chunkCount = 1;
        play.chunkSize = static_cast<float>(sampleCount);
    } else {
        play.chunkCount = count;
        play.chunkSize = static_cast<float>((sampleCount - kFirstHeaderSamples) / count);
    }
}

// A failed start hands back what the device already holds; `written` headers are on their way back.
void abandonPlay(ChunkedPlayback& play, WavePlayer& player, std::int64_t written) {
    for (std::int64_t i = written; i < static_cast<std::int64_t>(play.ChunkTable.size()); ++i) {
        if (play.ChunkTable[i].dwFlags & WHDR_PREPARED) player.device().unprepareHeader(play.ChunkTable[i]);
    }
    play.submitted = written;
    if (written > 0) player.Reset();
}

}  // namespace

void ChunkedPlayback::clearCounters() {
    nextOffset = 0;
    bytePosition = 0;
    submitted = 0;
    finished = 0;
}

int PlayChunked(ChunkedPlayback& play, WavePlayer& player, const std::int16_t* samples, std::int64_t sampleCount,
                std::int64_t chunkSamples, const PlayLayout& layout, Prompt& prompt) {
    if (sampleCount < 0) {
        prompt.showOk(kFileTooShort);
        return 0;
    }
    std::int64_t chunk = chunkSamples;
    if (layout.fileSpectrogramMode && layout.zoomed) {
        // One cursor step per two pixels of the zoomed graph.
        const std::int64_t steps = layout.graphWidth / 2;
        chunk = steps > 0 ? (sampleCount - kFirstHeaderSamples) / steps : 0;
    }
    cutIntoChunks(play, sampleCount, chunk);
    play.ChunkTable.assign(static_cast<std::size_t>(play.chunkCount), WaveHeader{});

    WaveOutDevice& device = player.device();
    const auto chunkBytes = static_cast<std::uint32_t>(play.chunkSize * 2.0);
    WaveHeader& first = play.ChunkTable[0];
    first.lpData = bytesOf(samples);
    first.dwBufferLength = play.chunkCount > 1 ? kFirstHeaderSamples * 2 : chunkBytes;
    if (device.prepareHeader(first) != MMSYSERR_NOERROR) {
        prompt.showOk(kErrorLoadingBuffer);
        abandonPlay(play, player, 0);
        return 0;
    }
    play.cursorPosition = 0.0f;
    if (device.write(first) != MMSYSERR_NOERROR) {
        prompt.showOk(kErrorPlayingSoundFile);
        abandonPlay(play, player, 0);
        return 0;
    }

    play.submitted = layout.zoomed ? play.chunkCount : std::min<std::int64_t>(play.chunkCount, kMaxQueuedHeaders);
    // The offset runs in float, as the chunk size does; the headers are prepared before any of them is queued.
    float offset = static_cast<float>(kFirstHeaderSamples * 2);
    for (std::int64_t i = 1; i < play.submitted; ++i) {
        WaveHeader& header = play.ChunkTable[i];
        header.lpData = bytesOf(samples) + static_cast<std::int64_t>(offset);
        header.dwBufferLength = chunkBytes;
        if (device.prepareHeader(header) != MMSYSERR_NOERROR) {
            prompt.showOk(kErrorLoadingBuffer);
            abandonPlay(play, player, 1);
            return 0;
        }
        offset = static_cast<float>(offset + play.chunkSize * 2.0);
    }
    play.nextOffset += static_cast<std::int64_t>(offset);
    play.finished = 0;
    for (std::int64_t i = 1; i < play.submitted; ++i) {
        if (device.write(play.ChunkTable[i]) == MMSYSERR_NOERROR) continue;
        prompt.showOk(kErrorPlayingSoundFile);
        abandonPlay(play, player, i);
        return 0;
    }
    return 1;
}

int SubmitNext(ChunkedPlayback& play, WavePlayer& player, const std::int16_t* base, std::int64_t sampleCount,
               std::uintptr_t user, Prompt& prompt) {
    const auto step = static_cast<std::int64_t>(play.chunkSize * 2.0);
    const std::int64_t length = (play.nextOffset + step <= sampleCount * 2) ? step : sampleCount * 2 - play.nextOffset;
    if (length <= 0) return 0;
    SONALYS_ASSERT(0 <= play.submitted && play.submitted < play.chunkCount);
    WaveHeader& header = play.ChunkTable[static_cast<std::size_t>(play.submitted)];
    header = WaveHeader{};
    header.lpData = bytesOf(base) + play.nextOffset;
    header.dwBufferLength = static_cast<std::uint32_t>(length);
    header.dwUser = user;
    // A chunk that cannot be handed over is skipped: the play goes on past it.
    play.nextOffset += step;
    WaveOutDevice& device = player.device();
    if (device.prepareHeader(header) != MMSYSERR_NOERROR) {
        prompt.showOk(kErrorWaveOutPrepareHeader);
        return 0;
    }
    if (device.write(header) != MMSYSERR_NOERROR) {
        prompt.showOk(kErrorPlayingSoundFile);
        device.unprepareHeader(header);
        return 0;
    }
    return 1;
}

std::int64_t PlayHeaderBack(ChunkedPlayback& play, WavePlayer& player, const WaveHeader& header) {
    const std::int64_t began = play.bytePosition;
    if (!play.rateChanging && !play.oneShot) play.bytePosition += header.dwBufferLength;
    ++play.finished;
    player.HeaderFinished();
    return began;
}

void PlayHeaderDone(ChunkedPlayback& play, WavePlayer& player, WaveHeader& header, const std::int16_t* base,
                    std::int64_t sampleCount, Prompt& prompt) {
    player.device().unprepareHeader(header);
    if (play.finished < play.submitted && play.submitted < play.chunkCount && !player.resetting()) {
        const int queued = SubmitNext(play, player, base, sampleCount, header.dwUser, prompt);
        if (player.stopQueue()) player.device().reset();
        ++play.submitted;
        // A chunk that never reached the device will never come back: it counts as come back now.
        if (!queued) ++play.finished;
    }
    if (play.finished >= play.submitted) player.Close();
}

void PlayClosed(ChunkedPlayback& play) {
    play.ChunkTable.clear();
    play.ChunkTable.shrink_to_fit();
}
