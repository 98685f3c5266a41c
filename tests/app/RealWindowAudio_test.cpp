// The whole program on a real PulseAudio server: a tone sung into the test pipe source is recorded with the panel's
// Record button, kept, reopened and measured; the take played with the Play button comes out of the null sink as the
// file holds it. Takes and plays end by the count of samples, never by a clock.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QToolButton>
#include <cmath>
#include <csignal>
#include <numbers>

#include "ProgramOnRoot.h"
#include "PulseSupport.h"
#include "audio/SoundSystemExit.h"
#include "audio/WavePlayer.h"
#include "panels/CMyBarra.h"
#include "store/RecordingFiles.h"
#include "store/WaveFile.h"
#include "view/CAFView.h"

namespace {

constexpr int kRate = 11025;
constexpr double kToneHz = 441.0;  // 25 samples a period at 11025 Hz
constexpr double kAmplitude = 8000.0;

std::int16_t tone(std::size_t i) {
    return static_cast<std::int16_t>(std::lround(kAmplitude * std::sin(2.0 * std::numbers::pi * kToneHz * i / kRate)));
}

// Runs the event loop until `done` holds, or the sound stopped coming for far longer than the take needs.
template <class Done>
bool runUntil(Done done) {
    for (int turn = 0; turn < 6000 && !done(); ++turn) runEventLoop(10);
    return done();
}

TEST(RealWindowAudio, ATakeRecordedWithTheButtonHoldsTheToneAndPlaysBackAsTheFileHoldsIt) {
    const std::optional<TestDevices> devices = findTestDevices();
    if (!devices || !toolAvailable("parec")) GTEST_SKIP() << "no test PulseAudio server, or no parec";
    ASSERT_EQ(devices->rate, kRate);
    TempDir root;
    std::filesystem::create_directories(root / "pac001");
    ProgramOnRoot program(root.path());
    CMainFrame& frame = program.frame();
    frame.resize(1024, 768);
    frame.show();
    CAFView& view = *frame.view();
    view.setCurrentClient(ClientFolder{root.path(), 1}, "Ana");
    view.ShowSpectrogramPage();
    CMyBarra& panel = *view.spectrogramPanel();

    // Two seconds of take, counted in samples received.
    const std::int64_t wanted = 2 * kRate;
    drainPipe(devices->fifo);
    PipeFeeder feeder(devices->fifo, kRate, tone, static_cast<std::size_t>(wanted) * 4);
    QTest::mouseClick(panel.RecordButton(), Qt::LeftButton);
    ASSERT_TRUE(view.Recording) << program.prompt.last();
    ASSERT_TRUE(runUntil([&] { return view.bytePosition() >= wanted * 2; }));
    EXPECT_GT(view.picture().columnsDone(), 0);
    program.prompt.answers = {true};
    QTest::mouseClick(panel.RecordButton(), Qt::LeftButton);
    feeder.stop();
    ASSERT_FALSE(view.Recording);

    const WaveLoadResult take = WaveLoad(root / "pac001" / "wv001.wav");
    ASSERT_GE(static_cast<std::int64_t>(take.samples.size()), wanted);
    EXPECT_LT(static_cast<std::int64_t>(take.samples.size()), wanted + kRate / 2);
    EXPECT_EQ(take.format.nSamplesPerSec, static_cast<std::uint32_t>(kRate));
    // The pipe may start with a little silence before the tone: the last second's upward zero crossings give the
    // tone's frequency, and its RMS the tone's amplitude over the square root of 2.
    const auto lastSecond = std::span(take.samples).last(kRate);
    int crossings = 0;
    double energy = 0.0;
    for (std::size_t i = 1; i < lastSecond.size(); ++i) {
        crossings += lastSecond[i - 1] < 0 && lastSecond[i] >= 0;
        energy += static_cast<double>(lastSecond[i]) * lastSecond[i];
    }
    EXPECT_NEAR(crossings, kToneHz, 2.0);
    EXPECT_NEAR(std::sqrt(energy / kRate), kAmplitude / std::sqrt(2.0), kAmplitude * 0.02);
    ASSERT_EQ(view.displayMode(), DisplayMode::FileSpectrogramMode);

    // Played whole, the null sink hears the file from its start, up to the chunk the play leaves out.
    std::vector<std::int16_t> heard = recordMonitor(devices->sink, kRate, root / "heard.raw", [&] {
        QTest::mouseClick(panel.PlayButton(), Qt::LeftButton);
        ASSERT_TRUE(view.Playing);
        ASSERT_TRUE(runUntil([&] { return !view.Playing; }));
    });
    std::erase(heard, 0);
    std::vector<std::int16_t> sounded = take.samples;
    std::erase(sounded, 0);
    ASSERT_GT(heard.size(), sounded.size() * 9 / 10);
    EXPECT_TRUE(std::ranges::equal(heard, std::span(sounded).first(heard.size())));
    EXPECT_EQ(view.playback().bytePosition % 2, 0);
    EXPECT_LE(view.playback().bytePosition, static_cast<std::int64_t>(take.samples.size() * 2));
}

}  // namespace

int main(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    letSoundSystemSettle();
    return failed;
}
