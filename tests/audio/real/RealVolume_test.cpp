// The sound server's levels of the test devices, set and read back through the server's own tool, and a change made
// by another program heard through the callback.
#include <gtest/gtest.h>

#include <regex>

#include "PulseSupport.h"
#include "audio/PulseVolume.h"

namespace {

// The server's raw volume of the device's first channel, as pactl prints it ("Volume: mono: 40001 /  61% / ...").
std::optional<long> serverVolume(const std::string& kind, const std::string& device) {
    const CommandResult result = runCommand("pactl get-" + kind + "-volume " + device);
    std::smatch match;
    if (result.exitCode != 0 || !std::regex_search(result.output, match, std::regex(R"(:\s*(\d+)\s*/)"))) return {};
    return std::stol(match[1]);
}

}  // namespace

TEST(RealVolume, TheMasterAndInputLevelsAreTheDefaultDevicesLevels) {
    const auto devices = findTestDevices();
    if (!devices) GTEST_SKIP() << "no PulseAudio server with the test devices (scripts/pulse-test-server.sh)";
    CVolumeOutMaster master;
    CVolumeInXXX input(kMicrophoneInput);  // the pipe lists no connectors: it serves as the microphone
    ASSERT_EQ(master.Enable(), 1);
    ASSERT_EQ(input.Enable(), 1);
    EXPECT_EQ(master.GetMaximum(), 65535);

    master.SetCurrent(40000);  // 40000 * 65536 / 65535 = 40000.6 on the server's scale
    input.SetCurrent(20000);   // 20000.3
    EXPECT_EQ(serverVolume("sink", devices->sink), 40001);
    EXPECT_EQ(serverVolume("source", devices->source), 20000);
    EXPECT_EQ(master.GetCurrent(), 40000);
    EXPECT_EQ(input.GetCurrent(), 20000);

    int heard = -1;
    master.SetCallback([&heard](int value) { heard = value; });
    ASSERT_EQ(runCommand("pactl set-sink-volume " + devices->sink + " 0x8000").exitCode, 0);
    for (int i = 0; i < 400 && heard != 32768; ++i) runEventLoop(5);
    EXPECT_EQ(heard, 32768);  // 0x8000 * 65535 / 65536 = 32767.5
    runCommand("pactl set-sink-volume " + devices->sink + " 0x10000");
    runCommand("pactl set-source-volume " + devices->source + " 0x10000");
}
