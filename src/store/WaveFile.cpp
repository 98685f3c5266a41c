#include "WaveFile.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <system_error>

#include "DateFile.h"
#include "FileLookup.h"
#include "FileTimes.h"
#include "Prompt.h"
#include "ReplacingFile.h"
#include "TextFormat.h"
#include "base/Assert.h"
#include "base/ByteOrder.h"

namespace {

// Samples are written through a buffer of this size, so writing never needs a second copy of the whole recording.
constexpr std::size_t kCopyBlockBytes = 64 * 1024;

struct ChunkHeader {
    std::array<char, 4> id{};
    std::uint32_t size = 0;
    std::uint64_t dataOffset = 0;  // where the chunk's contents begin
};

bool readExactly(std::ifstream& stream, void* buffer, std::size_t size) {
    stream.read(static_cast<char*>(buffer), static_cast<std::streamsize>(size));
    return static_cast<std::size_t>(stream.gcount()) == size;
}

// The read position, or the file's size when the stream has failed, so that nothing further fits.
std::uint64_t positionOf(WaveHandle& handle) {
    const auto position = handle.stream.tellg();
    if (position < 0) return handle.fileSize;
    return std::min<std::uint64_t>(static_cast<std::uint64_t>(position), handle.fileSize);
}

bool readChunkHeader(WaveHandle& handle, ChunkHeader& chunk) {
    std::uint8_t raw[8];
    if (!readExactly(handle.stream, raw, sizeof raw)) return false;
    std::memcpy(chunk.id.data(), raw, 4);
    chunk.size = readLE32(raw + 4);
    chunk.dataOffset = positionOf(handle);
    return true;
}

bool seekTo(WaveHandle& handle, std::uint64_t offset) {
    handle.stream.clear();
    if (offset > handle.fileSize) return false;
    handle.stream.seekg(static_cast<std::streamoff>(offset));
    return static_cast<bool>(handle.stream);
}

std::uint64_t chunkEnd(const ChunkHeader& chunk) { return chunk.dataOffset + chunk.size + (chunk.size & 1u); }

// Walks the chunks from the current position to the end of the file and stops inside the first one named `id`.
// Chunks are padded to an even length. The walk goes by the file's real end rather than by the RIFF size, which
// writers that cannot seek back (a pipe) leave wrong.
bool findChunk(WaveHandle& handle, const char* id, ChunkHeader& chunk) {
    for (;;) {
        if (!readChunkHeader(handle, chunk)) return false;
        if (std::memcmp(chunk.id.data(), id, 4) == 0) return true;
        if (!seekTo(handle, chunkEnd(chunk))) return false;
    }
}

WaveFormat formatFromFixedBytes(const std::uint8_t* raw) {
    WaveFormat format;
    format.wFormatTag = readLE16(raw);
    format.nChannels = readLE16(raw + 2);
    format.nSamplesPerSec = readLE32(raw + 4);
    format.nAvgBytesPerSec = readLE32(raw + 8);
    format.nBlockAlign = readLE16(raw + 12);
    format.wBitsPerSample = readLE16(raw + 14);
    return format;
}

int readFormatChunk(WaveHandle& handle, WaveFormat& format) {
    ChunkHeader fmt;
    if (!findChunk(handle, "fmt ", fmt)) return kWaveChunkNotFound;
    if (fmt.size < 16) return kWaveNotWave;
    std::uint8_t fixed[16];
    if (!readExactly(handle.stream, fixed, sizeof fixed)) return kWaveFormatUnreadable;
    format = formatFromFixedBytes(fixed);
    // Plain PCM has no extra size, whether or not its chunk holds the field. For other tags the two bytes after
    // the fixed part are the extra size, read from the file as it stands; at most 65535 bytes follow.
    if (format.wFormatTag != 1) {
        std::uint8_t extraSize[2];
        if (!readExactly(handle.stream, extraSize, sizeof extraSize)) return kWaveFormatUnreadable;
        format.cbSize = readLE16(extraSize);
        format.extra.resize(format.cbSize);
        if (!readExactly(handle.stream, format.extra.data(), format.extra.size())) return kWaveNotWave;
    }
    // Leaving the chunk only moves the read position; the search for the data starts afresh anyway.
    seekTo(handle, chunkEnd(fmt));
    return kWaveOk;
}

std::vector<std::uint8_t> headerFor(const WaveFormat& format, std::uint32_t bytes) {
    constexpr std::uint32_t kHeaderBytes = 46;
    std::vector<std::uint8_t> header;
    header.reserve(kHeaderBytes);
    header.insert(header.end(), {'R', 'I', 'F', 'F'});
    appendLE32(header, kHeaderBytes - 8 + bytes);
    header.insert(header.end(), {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '});
    appendLE32(header, 18);
    appendLE16(header, 1);
    appendLE16(header, format.nChannels);
    appendLE32(header, format.nSamplesPerSec);
    appendLE32(header, static_cast<std::uint32_t>(format.nBlockAlign) * format.nSamplesPerSec);
    appendLE16(header, format.nBlockAlign);
    appendLE16(header, format.wBitsPerSample);
    appendLE16(header, 0);
    header.insert(header.end(), {'d', 'a', 't', 'a'});
    appendLE32(header, bytes);
    return header;
}

bool writeSamples(ReplacingFile& file, const std::int16_t* samples, std::uint32_t bytes) {
    std::vector<std::uint8_t> block(kCopyBlockBytes);
    for (std::uint32_t done = 0; done < bytes;) {
        const auto part = static_cast<std::uint32_t>(std::min<std::uint64_t>(block.size(), bytes - done));
        samplesToLE({samples + done / 2, part / 2}, block.data());
        if (!file.write(block.data(), part)) return false;
        done += part;
    }
    return true;
}

}  // namespace

WaveOpenResult WaveOpen(const std::filesystem::path& fileName) {
    WaveOpenResult result;
    WaveHandle& handle = result.handle;
    const std::filesystem::path found = findFileIgnoringCase(fileName);
    std::error_code error;
    const auto size = std::filesystem::file_size(found, error);
    if (!error) handle.stream.open(found, std::ios::binary);
    if (error || !handle.stream) {
        result.code = kWaveCannotOpen;
        return result;
    }
    handle.fileSize = size;
    ChunkHeader riff;
    char formType[4];
    if (!readChunkHeader(handle, riff) || std::memcmp(riff.id.data(), "RIFF", 4) != 0 ||
        !readExactly(handle.stream, formType, 4) || std::memcmp(formType, "WAVE", 4) != 0) {
        result.code = kWaveNotWave;
    } else {
        handle.riffDataOffset = riff.dataOffset;
        result.code = readFormatChunk(handle, result.format);
    }
    if (result.code != kWaveOk) {
        handle.stream.close();
        result.format = WaveFormat{};
    }
    return result;
}

int WaveFindData(WaveHandle& handle) {
    if (!seekTo(handle, handle.riffDataOffset + 4)) return kWaveChunkNotFound;
    ChunkHeader data;
    if (!findChunk(handle, "data", data)) return kWaveChunkNotFound;
    handle.dataOffset = data.dataOffset;
    handle.dataRemaining = data.size;
    return kWaveOk;
}

int WaveReadSamples(WaveHandle& handle, std::int16_t* buffer, std::uint32_t bytes, std::uint32_t& count) {
    count = 0;
    const std::uint32_t request = std::min(bytes, handle.dataRemaining);
    handle.dataRemaining -= request;
    const std::uint32_t values = request / 2;
    // Values are copied whole; the file is short only when one of them is missing, so a chunk of 5 bytes of
    // which the file holds 4 still gives 2 values.
    if (std::uint64_t{values} * 2 > handle.fileSize - positionOf(handle)) return kWaveDataTruncated;
    // The values go straight from the file into the buffer, then into native order where they stand.
    if (!readExactly(handle.stream, buffer, std::size_t{values} * 2)) return kWaveDataTruncated;
    samplesFromLEInPlace({buffer, values});
    count = values;
    return kWaveOk;
}

WaveLoadResult WaveLoad(const std::filesystem::path& fileName) {
    WaveLoadResult result;
    WaveOpenResult opened = WaveOpen(fileName);
    WaveHandle& handle = opened.handle;
    result.code = opened.code;
    if (result.code == kWaveOk) result.code = WaveFindData(handle);
    if (result.code == kWaveOk) {
        const std::uint32_t values = handle.dataRemaining / 2;
        if (std::uint64_t{values} * 2 > handle.fileSize - positionOf(handle)) {
            result.code = kWaveDataTruncated;  // refused before a buffer of that claimed size is made
        } else {
            try {
                result.samples.resize(values);
                std::uint32_t count = 0;
                result.code = WaveReadSamples(handle, result.samples.data(), handle.dataRemaining, count);
            } catch (const std::bad_alloc&) {
                result.code = kWaveNoMemory;
            }
        }
    }
    if (result.code == kWaveOk) {
        result.format = std::move(opened.format);
    } else {
        result.samples = {};
    }
    return result;
}

void WaveWriter::SetRecordFormat(int index) {
    SONALYS_ASSERT(0 <= index && index <= 9);
    static constexpr std::uint32_t kRates[] = {8000, 11025, 22050, 44100, 50000};
    const int bits = (index % 2 == 0) ? 8 : 16;
    format = WaveFormat{};
    format.wFormatTag = 1;
    format.nChannels = 1;
    format.nSamplesPerSec = kRates[index / 2];
    format.wBitsPerSample = static_cast<std::uint16_t>(bits);
    format.nBlockAlign = static_cast<std::uint16_t>(bits / 8);
    format.nAvgBytesPerSec = format.nBlockAlign * format.nSamplesPerSec;
    format.cbSize = 0;
}

int WaveWriter::WaveWrite(const std::filesystem::path& fileName, std::uint32_t bytes, const std::int16_t* samples,
                          Prompt& prompt) {
    SONALYS_ASSERT(bytes <= UINT32_MAX - 38);
    bytes &= ~1u;  // samples are whole 16-bit values
    m_createdAt.reset();
    // A file written over an older one is a new file on disk; the recording's first creation time is taken
    // before it goes, so that the date file can keep it.
    const std::filesystem::path target = findFileIgnoringCase(fileName);
    const std::optional<std::int64_t> firstCreated = recordingCreationTime(target);

    const std::vector<std::uint8_t> header = headerFor(format, bytes);
    ReplacingFile file(target);
    const bool written =
        file.write(header.data(), header.size()) && writeSamples(file, samples, bytes) && file.commit();
    if (!written) {
        const std::string name = fileName.string();
        prompt.showOk(formatText(prompt.inLanguage(kCannotRecordFile).c_str(), name.c_str()));
        return 0;
    }
    m_createdAt = firstCreated ? firstCreated : fileCreationTime(target);
    return 1;
}
