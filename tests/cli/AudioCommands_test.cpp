// What record and play say before any sound device is opened: each refusal names what is wrong, and a play of no
// samples ends quietly.
#include <gtest/gtest.h>

#include <string>

#include "RunCommand.h"
#include "TempDir.h"

TEST(AudioCommands, RefusalsNameTheFaultAndAnEmptyPlayEndsQuietly) {
    TempDir dir;
    // One second of 11025 Hz mono 16-bit made by sox, and a WAV file with no samples at all.
    const std::string second = quoted(dir / "second.wav"), empty = quoted(dir / "empty.wav");
    ASSERT_EQ(runCommand("sox -n -r 11025 -b 16 -c 1 " + second + " synth 1 sine 300").exitCode, 0);
    ASSERT_EQ(runCommand("sox -n -r 11025 -b 16 -c 1 " + empty + " trim 0 0").exitCode, 0);
    const struct {
        std::string arguments;
        int status;
        std::string says;
    } rows[] = {
        {"play " + second + " --from 1 --to 1", 2, "the range 1 s to 1 s is empty: --to must come after --from\n"},
        {"play " + second + " --from 0.5 --to 0.50001", 2, "the range 0.5 s to 0.50001 s holds no whole sample\n"},
        {"play " + second + " --from 2 --to 3", 2, "the range 2 s to 3 s is not within the recording (0 s to 1 s)\n"},
        {"play " + empty, 0,
         "file," + (dir / "empty.wav").string() + "\nsample_rate,11025\nfirst_value,0\nvalues_played,0\n"},
        {"record " + quoted(dir / "none/take.wav") + " --seconds 1", 2, (dir / "none").string() + ": no such folder\n"},
        {"record x.wav --seconds 1 --rate 8000", 1, "usage: sonalys-analyze record OUT.wav --seconds N"},
    };
    for (const auto& row : rows) {
        const CommandResult run = runCommand(std::string(SONALYS_CLI_PATH) + " " + row.arguments + " 2>&1");
        EXPECT_EQ(run.exitCode, row.status) << row.arguments;
        EXPECT_EQ(run.output.substr(0, row.says.size()), row.says) << row.arguments;
    }
}
