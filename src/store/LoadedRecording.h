// The recording on screen: its samples in memory, the format record read from its file, which recording it is
// and where its file lies, and whether it has edits not yet saved. The view holds one and owns it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "DeclaredText.h"
#include "WaveFile.h"

// Shown by the view when a recording of a client folder cannot be read, or holds no samples.
inline constexpr std::string_view kErrorReadingFile = SONALYS_TEXT("Sonalys", "Error Reading File");

inline constexpr int kOutsideRecordingNumber = -1;  // RecordingNumber of a file opened from outside a client folder
inline constexpr int kModelRecordingNumber = -2;    // RecordingNumber of a model opened for comparison

class LoadedRecording {
public:
    int RecordingNumber = 0;              // nnn of wvnnn / qvnnn, or -1, or -2
    std::filesystem::path RecordingPath;  // the sound file; side files are named from it
    bool Modified = false;                // edits not yet saved
    bool OpenedStereoAsMono = false;      // the file is stereo and was folded to one channel when opened

    // Reads the WAV file at `path` (found in any case of its name) into memory, taking the samples as they stand:
    // a stereo file stays interleaved and counts twice its frames. Returns 1, or 0 when the reader refuses the
    // file, which leaves the recording as it was. A file with an empty data chunk loads with no samples.
    int LoadSamples(const std::filesystem::path& path);

    // Values of 16 bits in memory, native order.
    std::size_t SampleCount() const noexcept { return m_samples.size(); }
    bool hasSamples() const noexcept { return !m_samples.empty(); }
    std::span<const std::int16_t> samples() const noexcept { return m_samples; }
    std::vector<std::int16_t>& samples() noexcept { return m_samples; }  // for the edit commands

    // The format record of the file last loaded; nothing before the first load.
    const std::optional<WaveFormat>& format() const noexcept { return m_format; }
    std::optional<WaveFormat>& format() noexcept { return m_format; }

    // Samples and format together, as after folding a stereo file.
    void replace(std::vector<std::int16_t> samples, WaveFormat format);
    // What closing a recording frees: the samples go and the count is 0; the format stays until the next load.
    void freeSamples() noexcept;

private:
    std::vector<std::int16_t> m_samples;
    std::optional<WaveFormat> m_format;
};
