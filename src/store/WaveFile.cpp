#include "WaveFile.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <system_error>

#include "ByteOrder.h"
#include "Prompt.h"
#include "ReplacingFile.h"
#include "TextFormat.h"

namespace {

struct ChunkHeader {
    std::array<char, 4> id{};
    std::uint32_t size = 0;
    std::uint64_t dataOffset = 0;  // where the chunk's contents begin
};

bool readExactly(std::ifstream& stream, void* buffer, std::size_t size) {
    stream.read(static_cast<char*>(buffer), static_cast<std::streamsize>(size));
    return static_cast<std::size_t>(stream.gcount()) == size;
}

bool readChunkHeader(WaveHandle& handle, ChunkHeader& chunk) {
    std::uint8_t raw[8];
    if (!readExactly(handle.stream, raw, sizeof raw)) return false;
    std::memcpy(chunk.id.data(), raw, 4);
    chunk.size = readLE32(raw + 4);
    chunk.dataOffset = static_cast<std::uint64_t>(handle.stream.tellg());
    return true;
}

bool seekTo(WaveHandle& handle, std::uint64_t offset) {
    handle.stream.clear();
    if (offset > handle.fileSize) return false;
    handle.stream.seekg(static_cast<std::streamoff>(offset));
    return static_cast<bool>(handle.stream);
}

// Walks the chunks from the current position to the end of the file and stops inside the first one named `id`.
// Chunks are padded to an even length. The walk goes by the file's real end rather than by the RIFF size, which
// some writers leave wrong.
bool findChunk(WaveHandle& handle, const char* id, ChunkHeader& chunk) {
    for (;;) {
        if (!readChunkHeader(handle, chunk)) return false;
        if (std::memcmp(chunk.id.data(), id, 4) == 0) return true;
        const std::uint64_t next = chunk.dataOffset + chunk.size + (chunk.size & 1u);
        if (!seekTo(handle, next)) return false;
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
    // Plain PCM has no extra size field, whether or not its chunk holds one.
    if (format.wFormatTag != 1) {
        std::uint8_t extraSize[2];
        if (!readExactly(handle.stream, extraSize, sizeof extraSize)) return kWaveFormatUnreadable;
        format.cbSize = readLE16(extraSize);
        format.extra.resize(format.cbSize);
        if (!readExactly(handle.stream, format.extra.data(), format.extra.size())) return kWaveNotWave;
    }
    if (!seekTo(handle, fmt.dataOffset + fmt.size + (fmt.size & 1u))) return kWaveChunkNotFound;
    return kWaveOk;
}

}  // namespace

WaveOpenResult WaveOpen(const std::filesystem::path& fileName) {
    WaveOpenResult result;
    WaveHandle& handle = result.handle;
    std::error_code error;
    const auto size = std::filesystem::file_size(fileName, error);
    handle.stream.open(fileName, std::ios::binary);
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
    const std::uint64_t position = static_cast<std::uint64_t>(handle.stream.tellg());
    // A chunk that claims more than the file holds is refused before anything is copied.
    if (position > handle.fileSize || request > handle.fileSize - position) return kWaveDataTruncated;
    const std::uint32_t values = request / 2;
    std::vector<std::uint8_t> raw(static_cast<std::size_t>(values) * 2);
    if (!readExactly(handle.stream, raw.data(), raw.size())) return kWaveDataTruncated;
    if (request & 1u) handle.stream.ignore(1);
    samplesFromLE(raw, buffer);
    count = values;
    return kWaveOk;
}

WaveLoadResult WaveLoad(const std::filesystem::path& fileName) {
    WaveLoadResult result;
    WaveOpenResult opened = WaveOpen(fileName);
    result.code = opened.code;
    if (result.code == kWaveOk) result.code = WaveFindData(opened.handle);
    if (result.code == kWaveOk) {
        WaveHandle& handle = opened.handle;
        const std::uint64_t position = static_cast<std::uint64_t>(handle.stream.tellg());
        if (handle.dataRemaining > handle.fileSize - std::min(position, handle.fileSize)) {
            result.code = kWaveDataTruncated;
        } else {
            try {
                result.samples.resize(handle.dataRemaining / 2);
                std::uint32_t count = 0;
                result.code = WaveReadSamples(handle, result.samples.data(), handle.dataRemaining, count);
                result.samples.resize(count);
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
    static constexpr std::uint32_t kRates[] = {8000, 11025, 22050, 44100, 50000};
    const int bits = (index % 2 == 0) ? 8 : 16;
    format = WaveFormat{};
    format.wFormatTag = 1;
    format.nChannels = 1;
    format.nSamplesPerSec = kRates[std::clamp(index, 0, 9) / 2];
    format.wBitsPerSample = static_cast<std::uint16_t>(bits);
    format.nBlockAlign = static_cast<std::uint16_t>(bits / 8);
    format.nAvgBytesPerSec = format.nBlockAlign * format.nSamplesPerSec;
    format.cbSize = 0;
}

int WaveWriter::WaveWrite(const std::filesystem::path& fileName, std::uint32_t bytes, const std::int16_t* samples,
                          Prompt& prompt) const {
    constexpr std::uint32_t kHeaderBytes = 46;
    bytes &= ~1u;  // samples are whole 16-bit values
    std::vector<std::uint8_t> header;
    header.reserve(kHeaderBytes);
    header.insert(header.end(), {'R', 'I', 'F', 'F'});
    appendLE32(header, kHeaderBytes - 8 + bytes);
    header.insert(header.end(), {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '});
    appendLE32(header, 18);
    appendLE16(header, format.wFormatTag);
    appendLE16(header, format.nChannels);
    appendLE32(header, format.nSamplesPerSec);
    appendLE32(header, format.nAvgBytesPerSec);
    appendLE16(header, format.nBlockAlign);
    appendLE16(header, format.wBitsPerSample);
    appendLE16(header, 0);
    header.insert(header.end(), {'d', 'a', 't', 'a'});
    appendLE32(header, bytes);

    ReplacingFile file(fileName);
    bool ok = file.write(header.data(), header.size());
    std::vector<std::uint8_t> block(64 * 1024);
    for (std::uint32_t done = 0; ok && done < bytes;) {
        const std::uint32_t part = std::min<std::uint32_t>(static_cast<std::uint32_t>(block.size()), bytes - done);
        samplesToLE({samples + done / 2, part / 2}, block.data());
        ok = file.write(block.data(), part);
        done += part;
    }
    if (ok) ok = file.commit();
    if (!ok) {
        const std::string name = fileName.string();
        prompt.showOk(formatText(kCannotRecordFile.data(), name.c_str()));
        return 0;
    }
    return 1;
}
