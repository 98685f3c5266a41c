// WAV files built byte by byte, so that reader tests can hand it exactly the shape they mean.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace wavebytes {

inline std::string le16(std::uint32_t v) { return {static_cast<char>(v & 0xFF), static_cast<char>((v >> 8) & 0xFF)}; }
inline std::string le32(std::uint32_t v) { return le16(v & 0xFFFF) + le16(v >> 16); }

// A chunk with its id, its size (the body's length unless `claimedSize` is given) and its pad byte.
inline std::string chunk(std::string_view id, std::string_view body, std::int64_t claimedSize = -1) {
    const auto size =
        static_cast<std::uint32_t>(claimedSize < 0 ? static_cast<std::int64_t>(body.size()) : claimedSize);
    std::string out = std::string(id) + le32(size) + std::string(body);
    if (body.size() % 2 == 1) out += '\0';
    return out;
}

// The 16 fixed bytes of a format record.
inline std::string fmtBody(std::uint16_t tag, std::uint16_t channels, std::uint32_t rate, std::uint16_t bits) {
    const std::uint32_t align = channels * bits / 8;
    return le16(tag) + le16(channels) + le32(rate) + le32(align * rate) + le16(align) + le16(bits);
}

inline std::string riff(std::string_view chunks) {
    return "RIFF" + le32(4 + chunks.size()) + "WAVE" + std::string(chunks);
}

inline std::string pcm16(std::initializer_list<int> values) {
    std::string out;
    for (int v : values) out += le16(static_cast<std::uint16_t>(v));
    return out;
}

// A plain 16-bit PCM file with an "fmt " chunk of 16 bytes.
inline std::string simpleWave(std::uint16_t channels, std::uint32_t rate, std::string_view samples,
                              std::uint16_t bits = 16) {
    return riff(chunk("fmt ", fmtBody(1, channels, rate, bits)) + chunk("data", samples));
}

}  // namespace wavebytes
