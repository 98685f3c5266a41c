// The one reader and writer of little-endian fixed-width integers: WAV headers, settings files and dBase rows are
// little-endian on disk whatever the machine is.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

inline std::uint16_t readLE16(const std::uint8_t* p) noexcept { return static_cast<std::uint16_t>(p[0] | (p[1] << 8)); }
inline std::uint32_t readLE32(const std::uint8_t* p) noexcept {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}
inline std::int32_t readLE32Signed(const std::uint8_t* p) noexcept { return static_cast<std::int32_t>(readLE32(p)); }
inline void writeLE16(std::uint8_t* p, std::uint16_t v) noexcept {
    p[0] = static_cast<std::uint8_t>(v);
    p[1] = static_cast<std::uint8_t>(v >> 8);
}
inline void writeLE32(std::uint8_t* p, std::uint32_t v) noexcept {
    for (int i = 0; i < 4; ++i) p[i] = static_cast<std::uint8_t>(v >> (8 * i));
}
inline void appendLE16(std::vector<std::uint8_t>& out, std::uint16_t v) {
    out.push_back(static_cast<std::uint8_t>(v));
    out.push_back(static_cast<std::uint8_t>(v >> 8));
}
inline void appendLE32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

// 16-bit samples between memory (native order) and disk (little-endian).
inline void samplesFromLE(std::span<const std::uint8_t> bytes, std::int16_t* out) noexcept {
    const std::size_t count = bytes.size() / 2;
    if (count == 0) return;  // an empty span may carry no pointer at all
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(out, bytes.data(), count * 2);
    } else {
        for (std::size_t i = 0; i < count; ++i) out[i] = static_cast<std::int16_t>(readLE16(bytes.data() + 2 * i));
    }
}
// 16-bit samples read from disk straight into their buffer, put into native order where they stand.
inline void samplesFromLEInPlace(std::span<std::int16_t> samples) noexcept {
    if constexpr (std::endian::native != std::endian::little) {
        for (auto& s : samples) {
            std::uint8_t bytes[2];
            std::memcpy(bytes, &s, 2);
            s = static_cast<std::int16_t>(readLE16(bytes));
        }
    }
}
inline void samplesToLE(std::span<const std::int16_t> samples, std::uint8_t* out) noexcept {
    if (samples.empty()) return;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(out, samples.data(), samples.size() * 2);
    } else {
        for (std::size_t i = 0; i < samples.size(); ++i) writeLE16(out + 2 * i, static_cast<std::uint16_t>(samples[i]));
    }
}
