#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "RunCommand.h"
#include "TempDir.h"

namespace {

bool haveSox() { return toolAvailable("sox") && toolAvailable("soxi"); }

int run(const std::string& command) { return runCommand(command + " >/dev/null 2>&1").exitCode; }

// What soxi says of one property of a file: "-r" rate, "-c" channels, "-b" bits, "-s" samples per channel.
std::string soxi(const std::string& flag, const std::filesystem::path& file) {
    std::string text = runCommand("soxi " + flag + " " + quoted(file) + " 2>/dev/null").output;
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    return text;
}

std::string convert(const std::filesystem::path& in, const std::filesystem::path& out, const std::string& rate) {
    return std::string(SONALYS_CLI_PATH) + " convert '" + in.string() + "' '" + out.string() + "' --rate " + rate;
}

}  // namespace

TEST(ConvertCommand, WritesMono16BitFilesThatSoxReadsAtTheAskedRate) {
    if (!haveSox()) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    ASSERT_EQ(run("sox -n -r 8000 -c 1 -b 16 '" + (dir / "mono8k.wav").string() + "' synth 0.5 sine 440"), 0);
    ASSERT_EQ(run("sox -n -r 48000 -c 2 -b 16 '" + (dir / "stereo48k.wav").string() + "' synth 0.5 sine 440 sine 900"),
              0);

    ASSERT_EQ(run(convert(dir / "mono8k.wav", dir / "a.wav", "11025")), 0);
    EXPECT_EQ(soxi("-r", dir / "a.wav"), "11025");
    EXPECT_EQ(soxi("-c", dir / "a.wav"), "1");
    EXPECT_EQ(soxi("-b", dir / "a.wav"), "16");
    EXPECT_EQ(soxi("-s", dir / "a.wav"), std::to_string(4000 * 441 / 320));

    ASSERT_EQ(run(convert(dir / "stereo48k.wav", dir / "b.wav", "22050")), 0);  // folded by mixing first
    EXPECT_EQ(soxi("-r", dir / "b.wav"), "22050");
    EXPECT_EQ(soxi("-c", dir / "b.wav"), "1");
    EXPECT_EQ(soxi("-b", dir / "b.wav"), "16");
    EXPECT_EQ(soxi("-s", dir / "b.wav"), std::to_string(24000 * 147 / 320));
}

TEST(ConvertCommand, RefusesOtherRatesAndFilesThatAreNot16Bit) {
    if (!haveSox()) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    ASSERT_EQ(run("sox -n -r 16000 -c 1 -b 16 '" + (dir / "in.wav").string() + "' synth 0.1 sine 440"), 0);
    ASSERT_EQ(run("sox -n -r 16000 -c 1 -b 8 '" + (dir / "eight.wav").string() + "' synth 0.1 sine 440"), 0);
    EXPECT_EQ(run(convert(dir / "in.wav", dir / "x.wav", "16000")), 1);  // not a rate the program works at
    EXPECT_EQ(run(convert(dir / "eight.wav", dir / "y.wav", "22050")), 2);
    EXPECT_FALSE(std::filesystem::exists(dir / "x.wav"));
    EXPECT_FALSE(std::filesystem::exists(dir / "y.wav"));
}
