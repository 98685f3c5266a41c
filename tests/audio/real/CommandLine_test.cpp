// The record and play commands of sonalys-analyze on the test PulseAudio server.
#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "PulseSupport.h"
#include "TempDir.h"
#include "store/WaveFile.h"

namespace {

TEST(CommandLineAudio, TwoTakesIntoOneFolderHoldExactlyTheirLengthUnbroken) {
    const std::optional<TestDevices> devices = findTestDevices();
    if (!devices) GTEST_SKIP() << "no PulseAudio server with the test devices (scripts/pulse-test-server.sh)";
    drainPipe(devices->fifo);
    TempDir root;
    PipeFeeder feeder(
        devices->fifo, 11025, [](std::size_t i) { return static_cast<std::int16_t>(i + 1); }, 10 * 11025);
    // Both at once, each with a scratch file of its own; 1.5 s at 11025 Hz is 16537.5 samples, rounded to 16538.
    const std::string cli = SONALYS_CLI_PATH;
    const CommandResult run = runCommand(cli + " record " + quoted(root / "a.wav") + " --seconds 1.5 & " + cli +
                                         " record " + quoted(root / "b.wav") + " --seconds 1 & wait");
    feeder.stop();
    for (const auto& [name, values] : {std::pair{"a.wav", 16538u}, std::pair{"b.wav", 11025u}}) {
        const std::vector<std::int16_t> take = WaveLoad(root / name).samples;
        ASSERT_EQ(take.size(), values) << name << run.output;
        for (std::size_t i = 1; i < take.size(); ++i)
            ASSERT_EQ(static_cast<std::uint16_t>(take[i]), static_cast<std::uint16_t>(take[i - 1] + 1)) << name << i;
    }
    // The scratch files go once the takes are safe.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(root.path()), {}), 2);
}

}  // namespace
