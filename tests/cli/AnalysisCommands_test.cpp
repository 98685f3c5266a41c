// The spectral and formant subcommands of sonalys-analyze, run as a user runs them, on files made by real tools.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "RunCommand.h"
#include "TempDir.h"

static CommandResult run(const std::string& args) { return runCommand(SONALYS_CLI_PATH " " + args + " 2>/dev/null"); }

static std::vector<std::vector<double>> csvRows(const std::string& text, std::string& header) {
    std::istringstream in(text);
    std::getline(in, header);
    std::vector<std::vector<double>> rows;
    for (std::string line; std::getline(in, line);) {
        std::vector<double> row;
        std::istringstream fields(line);
        for (std::string field; std::getline(fields, field, ',');) row.push_back(std::stod(field));
        rows.push_back(row);
    }
    return rows;
}

TEST(FormantsCommand, SpeechFromEspeakGivesOneRowPer10MsTheSameOnAnyThreadCount) {
    if (!toolAvailable("espeak-ng")) GTEST_SKIP() << "espeak-ng is not installed";
    TempDir dir;
    const auto wav = (dir / "speech.wav").string();
    const std::string speak =
        "espeak-ng -w " + wav + " 'Formants of a speaking voice, measured every ten milliseconds.'";
    ASSERT_EQ(runCommand(speak).exitCode, 0);
    const CommandResult one = run("formants " + wav + " --threads 1");
    ASSERT_EQ(one.exitCode, 0);
    std::string header;
    const auto rows = csvRows(one.output, header);
    EXPECT_EQ(header, "time_s,f1,f2,f3,f4");
    ASSERT_GT(rows.size(), 100u);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_EQ(rows[i].size(), 5u);
        EXPECT_NEAR(rows[i][0], 0.01 * static_cast<double>(i), 1e-9);
        EXPECT_TRUE(rows[i][1] < rows[i][2] || rows[i][1] == 500.0) << "row " << i;
    }
    EXPECT_EQ(run("formants " + wav + " --threads 2").output, one.output);
    EXPECT_EQ(run("formants " + wav).output, one.output);
}

TEST(SpectrumCommand, ASoxSineAt1000HzPeaksInItsBin) {
    if (!toolAvailable("sox")) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    const auto wav = (dir / "tone.wav").string();
    ASSERT_EQ(std::system(("sox -n -r 11025 -b 16 -c 1 " + wav + " synth 1 sine 1000 vol 0.5").c_str()), 0);
    for (int fft : {256, 512, 1024}) {
        const CommandResult result = run("spectrum " + wav + " --fft " + std::to_string(fft) + " --from 0.2 --to 0.8");
        ASSERT_EQ(result.exitCode, 0) << fft;
        std::string header;
        const auto rows = csvRows(result.output, header);
        EXPECT_EQ(header, "freq_hz,db");
        ASSERT_EQ(rows.size(), static_cast<std::size_t>(fft / 2));
        const auto peak =
            std::max_element(rows.begin(), rows.end(), [](auto& a, auto& b) { return a[1] < b[1]; }) - rows.begin();
        EXPECT_EQ(peak, std::lround(1000.0 * fft / 11025)) << fft;
        EXPECT_NEAR(rows[peak][0], 1000.0, 11025.0 / fft);
    }
}

TEST(SpectrogramCommand, WritesAPictureOfTheAskedSize) {
    if (!toolAvailable("sox")) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    const auto wav = (dir / "sweep.wav").string();
    ASSERT_EQ(std::system(("sox -n -r 22050 -b 16 -c 1 " + wav + " synth 2 sine 200-4000 vol 0.5").c_str()), 0);
    const auto png = (dir / "sweep.png").string();
    const CommandResult result = run("spectrogram " + wav + " --out " + png + " --width 320 --height 200 --scheme 1");
    if (result.exitCode == 2 && !std::ifstream(png)) GTEST_SKIP() << "built without pictures";
    ASSERT_EQ(result.exitCode, 0);
    std::ifstream in(png, std::ios::binary);
    std::vector<unsigned char> head(24);
    in.read(reinterpret_cast<char*>(head.data()), 24);
    ASSERT_EQ(in.gcount(), 24);
    EXPECT_EQ(std::string(head.begin() + 1, head.begin() + 4), "PNG");
    // The header chunk holds the width and height, big-endian, at bytes 16 and 20.
    EXPECT_EQ((head[16] << 24) | (head[17] << 16) | (head[18] << 8) | head[19], 320);
    EXPECT_EQ((head[20] << 24) | (head[21] << 16) | (head[22] << 8) | head[23], 200);
}

TEST(AnalysisCommands, RefuseWrongUsageAndInputWithTheirStatus) {
    TempDir dir;
    dir.write("not.wav", "this is not a sound file");
    const auto bad = (dir / "not.wav").string();
    EXPECT_EQ(run("formants").exitCode, 1);
    EXPECT_EQ(run("formants " + bad).exitCode, 2);
    EXPECT_EQ(run("formants " + bad + " --threads 0").exitCode, 1);
    EXPECT_EQ(run("spectrum " + bad + " --fft 300").exitCode, 1);
    EXPECT_EQ(run("spectrum " + bad).exitCode, 2);
    EXPECT_EQ(run("spectrogram " + bad).exitCode, 1);  // no --out
    EXPECT_EQ(run("spectrogram " + bad + " --out x.png").exitCode, 2);
}
