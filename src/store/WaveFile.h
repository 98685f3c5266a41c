// The one reader and the one writer of WAV files. The reader hands back the format record and the 16-bit values
// of the "data" chunk; what formats are acceptable is decided by each caller. The writer makes one file shape only:
// RIFF, an 18-byte "fmt " chunk and a "data" chunk, 46 bytes of header in all.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>
#include <vector>

#include "DeclaredText.h"

struct Prompt;

// Result codes of the reader. Callers test only for zero.
inline constexpr int kWaveOk = 0;
inline constexpr int kWaveNoMemory = 0xE000;          // memory could not be allocated
inline constexpr int kWaveCannotOpen = 0xE100;        // the file could not be opened
inline constexpr int kWaveNotWave = 0xE101;           // not RIFF WAVE, "fmt " under 16 bytes, extra bytes short
inline constexpr int kWaveFormatUnreadable = 0xE102;  // the 16 fixed bytes or the extra size could not be read
inline constexpr int kWaveDataTruncated = 0xE103;     // "data" claims more bytes than the file holds
inline constexpr int kWaveChunkNotFound = 265;        // from the RIFF walker: no "fmt " or "data" chunk

inline constexpr std::string_view kCannotRecordFile =
    SONALYS_TEXT("Sonalys", "The %s file can´t be recorded!\nVerify if the file is opened!");

// The file's format record in its on-disk order; `extra` holds the cbSize bytes that follow it.
struct WaveFormat {
    std::uint16_t wFormatTag = 0;
    std::uint16_t nChannels = 0;
    std::uint32_t nSamplesPerSec = 0;
    std::uint32_t nAvgBytesPerSec = 0;
    std::uint16_t nBlockAlign = 0;
    std::uint16_t wBitsPerSample = 0;
    std::uint16_t cbSize = 0;
    std::vector<std::uint8_t> extra;

    bool operator==(const WaveFormat&) const = default;
};

// An open WAV file being read: the stream and where its chunks lie.
class WaveHandle {
public:
    std::ifstream stream;
    std::uint64_t fileSize = 0;
    std::uint64_t riffDataOffset = 0;  // first byte after "RIFF" and its size, that is the form type
    std::uint64_t dataOffset = 0;      // first byte of the "data" chunk's contents
    std::uint32_t dataRemaining = 0;   // bytes of the "data" chunk not yet read
};

struct WaveOpenResult {
    int code = kWaveOk;
    WaveHandle handle;
    WaveFormat format;
};

struct WaveLoadResult {
    int code = kWaveOk;
    WaveFormat format;
    std::vector<std::int16_t> samples;  // count = samples.size(), the data chunk's bytes / 2
};

// Opens `fileName` (found in any case of its name) and reads its format record. On failure nothing stays open.
WaveOpenResult WaveOpen(const std::filesystem::path& fileName);
// Positions the handle on the contents of the "data" chunk, wherever it lies among the other chunks.
int WaveFindData(WaveHandle& handle);
// Copies `bytes` / 2 values (an odd last byte dropped) of what the data chunk has left into `buffer`, and sets
// `count` to how many. When the file ends before they are all there, returns kWaveDataTruncated with count 0.
int WaveReadSamples(WaveHandle& handle, std::int16_t* buffer, std::uint32_t bytes, std::uint32_t& count);
// Opens, finds the data and reads all of it. On failure the format and the samples are empty. A data chunk that
// claims more than the file holds is refused before any buffer is made for it.
WaveLoadResult WaveLoad(const std::filesystem::path& fileName);

// Holds the format record that files are written with.
class WaveWriter {
public:
    WaveFormat format;

    // Fills the format record from the record-format table: index 0..9 gives 8000, 11025, 22050, 44100 and
    // 50000 Hz in pairs, even indices 8 bits, odd indices 16 bits, always one channel.
    void SetRecordFormat(int index);

    // Writes the 46-byte header and `bytes` bytes of samples (an odd last byte is dropped). The format tag is
    // always 1 and the extra size 0, whatever the record says: the samples are plain PCM. The new file replaces
    // an existing one only once it is complete. Returns 1, or 0 after telling the user, the old file untouched.
    int WaveWrite(const std::filesystem::path& fileName, std::uint32_t bytes, const std::int16_t* samples,
                  Prompt& prompt);

    // When the recording last written was first made, in seconds since 1970, for its date file. A file that
    // replaced an older one keeps the older one's time, so that saving an edit does not change the recording's
    // date; nothing after a failed write.
    std::optional<std::int64_t> createdAt() const noexcept { return m_createdAt; }

private:
    std::optional<std::int64_t> m_createdAt;
};
