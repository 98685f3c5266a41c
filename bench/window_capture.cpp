// A take made through the program's window on the test sound server, as a clinician makes it: the spectrogram page
// with the F0 read-out on, Record pressed, a counting signal sung into the test pipe at the pace of real time, and
// Stop pressed once the take holds the length asked for (counted in samples). It reports the processor time of the
// whole program while it captures, whether any buffer was lost or repeated (the count must run unbroken through the
// file), and the time from Stop to the file's page drawn.
//
//   SONALYS_TEST_RATE=44100 scripts/pulse-test-server.sh start bench
//   window_capture_bench [SECONDS] [--busy]     --busy keeps one core busy with another process meanwhile
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>
#include <QToolButton>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "BenchSupport.h"
#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "app/CAFApp.h"
#include "app/CMainFrame.h"
#include "audio/SoundSystemExit.h"
#include "panels/CMyBarra.h"
#include "store/WaveFile.h"
#include "view/CAFView.h"

namespace {

// Processor ticks of each thread of this process, by thread id, with the thread's name.
std::map<std::string, std::pair<std::string, long>> threadTicks() {
    std::map<std::string, std::pair<std::string, long>> ticks;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream stat(task.path() / "stat");
        std::string line;
        std::getline(stat, line);
        const auto open = line.find('('), close = line.rfind(')');
        if (open == std::string::npos || close == std::string::npos) continue;
        std::istringstream rest(line.substr(close + 2));
        std::string field;
        long utime = 0, stime = 0;
        for (int i = 3; i <= 15 && rest >> field; ++i) {
            if (i == 14) utime = std::stol(field);
            if (i == 15) stime = std::stol(field);
        }
        ticks[task.path().filename().string()] = {line.substr(open + 1, close - open - 1), utime + stime};
    }
    return ticks;
}

// A child process that spins on one core until it is killed.
pid_t startBusyProcess() {
    const pid_t child = fork();
    if (child == 0) {
        volatile unsigned long spin = 0;
        for (;;) spin = spin + 1;
    }
    return child;
}

// The record-format index of the rate button's three rates.
int formatIndexFor(int rate) { return rate == 44100 ? 7 : rate == 22050 ? 5 : 3; }

// The singer: a child process that writes the counting signal into the test pipe at the pace of real time, so that
// its work is not counted as the program's. Started before the program has any thread.
pid_t startSinger(const TestDevices& devices, std::size_t length) {
    drainPipe(devices.fifo);
    const pid_t child = fork();
    if (child == 0) {
        PipeFeeder feeder(devices.fifo, devices.rate, countingSample, length);
        for (;;) pause();
    }
    return child;
}

void stopChild(pid_t child) {
    if (child <= 0) return;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

}  // namespace

int main(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN);
    const int seconds = argc > 1 && argv[1][0] != '-' ? std::max(1, std::stoi(argv[1])) : 60;
    const bool busy = argc > 1 && std::strcmp(argv[argc - 1], "--busy") == 0;
    const std::optional<TestDevices> devices = findTestDevices();
    if (!devices) {
        std::fprintf(stderr, "no test sound server: run SONALYS_TEST_RATE=44100 scripts/pulse-test-server.sh start\n");
        return 1;
    }
    const std::int64_t wanted = static_cast<std::int64_t>(seconds) * devices->rate;
    const pid_t singer = startSinger(*devices, static_cast<std::size_t>(wanted + 30 * devices->rate));
    const pid_t busyChild = busy ? startBusyProcess() : 0;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    TempDir root;
    std::filesystem::create_directories(root / "pac001");
    FakePrompt prompt;
    CAFApp app(root.path(), prompt);
    app.startProgram = [](const QString&, const QStringList&) { return false; };
    app.makeVolume = nullptr;
    app.InitInstance({"sonalys", "-Embedding"});
    CMainFrame& frame = *app.mainFrame();
    frame.resize(1024, 768);
    frame.show();
    CAFView& view = *frame.view();
    view.setCurrentClient(ClientFolder{root.path(), 1}, "Bench");
    view.ShowSpectrogramPage();
    view.SetRecordFormat(formatIndexFor(devices->rate));
    CMyBarra& panel = *view.spectrogramPanel();
    panel.f0Box()->setChecked(qgetenv("NOF0").isEmpty());

    QTest::mouseClick(panel.RecordButton(), Qt::LeftButton);
    const auto began = std::chrono::steady_clock::now();
    const double cpuBefore = ProcessSeconds();
    const auto ticksBefore = threadTicks();
    while (view.Recording && view.bytePosition() < wanted * 2) runEventLoop(5);
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    const double cpu = ProcessSeconds() - cpuBefore;
    const auto ticksAfter = threadTicks();

    prompt.answers = {true};
    const auto stopAt = std::chrono::steady_clock::now();
    QTest::mouseClick(panel.RecordButton(), Qt::LeftButton);
    QApplication::processEvents();
    const double stopToPage =
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - stopAt).count();
    stopChild(singer);
    stopChild(busyChild);

    const WaveLoadResult take = WaveLoad(root / "pac001" / (devices->rate == 44100 ? "qv001.wav" : "wv001.wav"));
    std::size_t breaks = 0;
    for (std::size_t i = 1; i < take.samples.size(); ++i)
        breaks += take.samples[i] != countingSample(static_cast<std::size_t>(take.samples[0]) + i - 1);
    std::printf("%d Hz, %d s take in buffers of %d bytes%s, F0 read-out on, spectrogram page at 1024 x 768\n",
                devices->rate, seconds,
                UpdateRateBytes(devices->rate, LeadingNumber(panel.UpdateRateBox()->currentText())) & ~1,
                busy ? ", one core kept busy" : "");
    std::printf("  processor time while capturing: %.2f%% of one core (%.2f s over %.1f s)\n", 100.0 * cpu / wall, cpu,
                wall);
    const double tick = static_cast<double>(sysconf(_SC_CLK_TCK));
    for (const auto& [id, named] : ticksAfter) {
        const auto before = ticksBefore.find(id);
        const long spent = named.second - (before != ticksBefore.end() ? before->second.second : 0);
        if (spent > 0) std::printf("    thread %s: %.2f%%\n", named.first.c_str(), 100.0 * spent / tick / wall);
    }
    std::printf("  take: %zu samples, %zu breaks in the count (lost or repeated sound)\n", take.samples.size(), breaks);
    std::printf("  Stop to the file page drawn: %.1f ms (%s)\n", stopToPage,
                view.displayMode() == DisplayMode::FileSpectrogramMode ? "file page" : "NOT on the file page");
    if (!prompt.shown.empty()) std::printf("  messages: %zu, last: %s\n", prompt.shown.size(), prompt.last().c_str());
    app.ExitInstance();
    letSoundSystemSettle();
    return breaks == 0 ? 0 : 2;
}
