#include "audio/CrashMarker.h"

#include <array>
#include <fstream>

#include "base/ByteOrder.h"
#include "store/Prompt.h"
#include "store/ReplacingFile.h"

bool writeCrashMarker(const std::filesystem::path& dataRoot, const CrashMarker& marker) {
    std::array<std::uint8_t, 8> bytes{};
    writeLE32(bytes.data(), static_cast<std::uint32_t>(marker.state));
    writeLE32(bytes.data() + 4, static_cast<std::uint32_t>(marker.updateRateIndex));
    ReplacingFile file(dataRoot / kCrashMarkerFileName);
    return file.write(bytes.data(), bytes.size()) && file.commit();
}

std::optional<CrashMarker> readCrashMarker(const std::filesystem::path& dataRoot) {
    std::ifstream in(dataRoot / kCrashMarkerFileName, std::ios::binary);
    std::array<std::uint8_t, 8> bytes{};
    in.read(reinterpret_cast<char*>(bytes.data()), bytes.size());
    const auto length = in.gcount();
    if (length < 4) return std::nullopt;
    return CrashMarker{readLE32Signed(bytes.data()), length == 8 ? readLE32Signed(bytes.data() + 4) : -1};
}

int takeCrashMarker(const std::filesystem::path& dataRoot, Prompt& prompt) {
    const std::optional<CrashMarker> marker = readCrashMarker(dataRoot);
    if (marker && marker->state == kCaptureRunning) prompt.showOk(kNotEndedProperly);
    std::error_code ignored;
    std::filesystem::remove(dataRoot / kCrashMarkerFileName, ignored);
    return marker ? marker->updateRateIndex : -1;
}
