#include "PulseSupport.h"

#include <fcntl.h>
#include <unistd.h>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <array>
#include <csignal>
#include <ctime>
#include <regex>

#include "base/ByteOrder.h"

std::optional<TestDevices> findTestDevices() {
    const auto firstLine = [](const std::string& command) {
        const std::string text = runCommand(command + " 2>/dev/null").output;
        return text.substr(0, text.find('\n'));
    };
    TestDevices devices;
    devices.source = firstLine("pactl get-default-source");
    devices.sink = firstLine("pactl get-default-sink");
    const std::string modules = runCommand("pactl list short modules 2>/dev/null").output;
    // The pipe source's line names its source, its file and its rate.
    const std::regex pipe("module-pipe-source\\s+source_name=" + devices.source + " file=(\\S+).* rate=(\\d+)");
    std::smatch found;
    if (devices.source.empty() || !std::regex_search(modules, found, pipe)) return std::nullopt;
    devices.fifo = found[1].str();
    devices.rate = std::stoi(found[2].str());
    return devices;
}

void drainPipe(const std::filesystem::path& fifo) {
    // The server may still hold a moment of what an earlier test fed: it is let through with no one recording, and
    // the pipe emptied again.
    for (int pass = 0; pass < 2; ++pass) {
        const int fd = ::open(fifo.c_str(), O_RDONLY | O_NONBLOCK);
        if (fd < 0) return;
        std::array<char, 4096> scratch;
        while (::read(fd, scratch.data(), scratch.size()) > 0) {
        }
        ::close(fd);
        if (pass == 0) std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
}

PipeFeeder::PipeFeeder(std::filesystem::path fifo, int rate, std::function<std::int16_t(std::size_t)> sound,
                       std::size_t length)
    : m_fifo(std::move(fifo)), m_rate(rate), m_sound(std::move(sound)), m_length(length), m_thread([this] { run(); }) {}

void PipeFeeder::stop() {
    m_stop = true;
    if (m_thread.joinable()) m_thread.join();
}

PipeFeeder::Clock::time_point PipeFeeder::writtenAt(std::size_t index) const {
    std::lock_guard lock(m_timesLock);
    const std::size_t block = index / static_cast<std::size_t>(m_rate / 1000);
    return block < m_blockTimes.size() ? m_blockTimes[block] : Clock::time_point::max();
}

void PipeFeeder::run() {
    const int fd = ::open(m_fifo.c_str(), O_WRONLY);
    if (fd < 0) return;
    const Clock::time_point begin = Clock::now();
    std::vector<std::int16_t> block(static_cast<std::size_t>(m_rate / 1000));
    for (std::size_t done = 0; !m_stop && done < m_length;) {
        const std::size_t count = std::min(block.size(), m_length - done);
        for (std::size_t i = 0; i < count; ++i) block[i] = m_sound(done + i);
        if (::write(fd, block.data(), count * 2) != static_cast<ssize_t>(count * 2)) break;
        {
            std::lock_guard lock(m_timesLock);
            m_blockTimes.push_back(Clock::now());
        }
        done += count;
        std::this_thread::sleep_until(begin +
                                      std::chrono::microseconds(static_cast<long long>(done) * 1'000'000 / m_rate));
    }
    ::close(fd);
    timespec cpu{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &cpu);
    m_cpuSeconds = static_cast<double>(cpu.tv_sec) + static_cast<double>(cpu.tv_nsec) * 1e-9;
}

std::vector<std::int16_t> recordMonitor(const std::string& sink, int rate, const std::filesystem::path& file,
                                        const std::function<void()>& play) {
    QProcess parec;
    parec.setStandardOutputFile(QString::fromStdString(file.string()));
    parec.start("parec", {"--raw", "--format=s16le", "--channels=1", "--latency-msec=10",
                          QStringLiteral("--rate=%1").arg(rate), "-d", QString::fromStdString(sink + ".monitor")});
    if (!parec.waitForStarted(5000)) return {};
    runEventLoop(300);  // connected and recording before anything plays
    play();
    runEventLoop(300);
    // parec writes out what it holds only when interrupted, not when terminated.
    ::kill(static_cast<pid_t>(parec.processId()), SIGINT);
    parec.waitForFinished(5000);
    const std::string bytes = runCommand("cat '" + file.string() + "'").output;
    std::vector<std::int16_t> samples(bytes.size() / 2);
    samplesFromLE({reinterpret_cast<const std::uint8_t*>(bytes.data()), samples.size() * 2}, samples.data());
    return samples;
}

void runEventLoop(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
