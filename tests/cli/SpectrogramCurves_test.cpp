// sonalys-analyze spectrogram with its curves: the F0 dots of a steady tone stand where the scale puts them.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include <QImage>

#include "RunCommand.h"
#include "TempDir.h"

static CommandResult run(const std::string& args) { return runCommand(SONALYS_CLI_PATH " " + args + " 2>/dev/null"); }

TEST(SpectrogramCurves, F0DotsOfA200HzToneStandAtTheirHeightOnTheScale) {
    if (!toolAvailable("sox")) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    const auto wav = (dir / "tone.wav").string();
    ASSERT_EQ(std::system(("sox -n -r 11025 -b 16 -c 1 " + wav + " synth 2 sine 200 vol 0.5").c_str()), 0);
    const auto png = (dir / "tone.png").string();
    // No dynamic range: the picture is all black in scheme 1, and only the red F0 dots and the formants show.
    const std::string picture =
        "spectrogram " + wav + " --out " + png + " --width 200 --height 300 --range 0 --scheme 1";
    ASSERT_EQ(run(picture + " --f0 --f0-min 100 --f0-max 400").exitCode, 0);
    QImage image(QString::fromStdString(png));
    ASSERT_FALSE(image.isNull());
    // 200 Hz is a third of 100..400: the dot's box starts 300 - 33.3 * 300 / 100 = 200 pixels down, give or take a
    // pixel for the tracker's estimate.
    for (int x = 40; x < 160; x += 20) {
        int top = -1;
        for (int y = 0; y < image.height() && top < 0; ++y)
            if (image.pixel(x + 1, y) == qRgb(255, 0, 0)) top = y;
        EXPECT_NEAR(top, 200, 1) << "column " << x;
    }
    EXPECT_EQ(run(picture + " --f0 --formants").exitCode, 0);
    EXPECT_EQ(run(picture + " --f0 --f0-min 40").exitCode, 1);
    EXPECT_EQ(run(picture + " --f0 --f0-min 300 --f0-max 300").exitCode, 1);
}
