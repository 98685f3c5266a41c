#include <gtest/gtest.h>

#include <string>

#include "RunCommand.h"
#include "TempDir.h"

static bool haveSox() { return toolAvailable("sox") && toolAvailable("soxi"); }

static int run(const std::string& command) { return runCommand(command + " >/dev/null 2>&1").exitCode; }

// What soxi says of a file, a line each: rate, channels, bits, samples per channel.
static std::string soxi(const std::filesystem::path& file) {
    std::string text;
    for (const char* flag : {"-r", "-c", "-b", "-s"})
        text += runCommand(std::string("soxi ") + flag + " " + quoted(file)).output;
    return text;
}

static std::string convert(const std::filesystem::path& in, const std::filesystem::path& out, const std::string& rate) {
    return std::string(SONALYS_CLI_PATH) + " convert '" + in.string() + "' '" + out.string() + "' --rate " + rate;
}

TEST(ConvertCommand, WritesMono16BitFilesThatSoxReadsAtTheAskedRate) {
    if (!haveSox()) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    ASSERT_EQ(run("sox -n -r 8000 -c 1 -b 16 '" + (dir / "mono8k.wav").string() + "' synth 0.5 sine 440"), 0);
    ASSERT_EQ(run("sox -n -r 48000 -c 2 -b 16 " + quoted(dir / "stereo48k.wav") + " synth 0.5 sine 440 sine 900"), 0);

    ASSERT_EQ(run(convert(dir / "mono8k.wav", dir / "a.wav", "11025")), 0);
    EXPECT_EQ(soxi(dir / "a.wav"), "11025\n1\n16\n" + std::to_string(4000 * 441 / 320) + "\n");

    ASSERT_EQ(run(convert(dir / "stereo48k.wav", dir / "b.wav", "22050")), 0);  // folded by mixing first
    EXPECT_EQ(soxi(dir / "b.wav"), "22050\n1\n16\n" + std::to_string(24000 * 147 / 320) + "\n");
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
