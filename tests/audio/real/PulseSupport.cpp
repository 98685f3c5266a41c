#include "PulseSupport.h"

#include <fcntl.h>
#include <unistd.h>
#include <QEventLoop>
#include <QTimer>
#include <array>
#include <csignal>
#include <ctime>
#include <fstream>
#include <sstream>

#include "store/WaveFile.h"

namespace {

std::string firstLine(std::string text) {
    const auto end = text.find('\n');
    return end == std::string::npos ? text : text.substr(0, end);
}

// "key=value" out of a module's argument list.
std::string argument(const std::string& arguments, const std::string& key) {
    std::istringstream words(arguments);
    std::string word;
    while (words >> word) {
        if (word.rfind(key + "=", 0) == 0) return word.substr(key.size() + 1);
    }
    return {};
}

}  // namespace

std::optional<TestDevices> findTestDevices(const std::string& server) {
    const std::string pactl = server.empty() ? "pactl" : "pactl -s " + server;
    const CommandResult source = runCommand(pactl + " get-default-source 2>/dev/null");
    const CommandResult sink = runCommand(pactl + " get-default-sink 2>/dev/null");
    const CommandResult modules = runCommand(pactl + " list short modules 2>/dev/null");
    if (source.exitCode != 0 || sink.exitCode != 0 || modules.exitCode != 0) return std::nullopt;
    TestDevices devices;
    devices.source = firstLine(source.output);
    devices.sink = firstLine(sink.output);
    std::istringstream lines(modules.output);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.find("module-pipe-source") == std::string::npos) continue;
        if (argument(line, "source_name") != devices.source) continue;
        devices.fifo = argument(line, "file");
        const std::string rate = argument(line, "rate");
        devices.rate = rate.empty() ? 44100 : std::stoi(rate);
    }
    if (devices.fifo.empty()) return std::nullopt;
    return devices;
}

void drainPipe(const std::filesystem::path& fifo) {
    const int fd = ::open(fifo.c_str(), O_RDONLY | O_NONBLOCK);
    if (fd < 0) return;
    std::array<char, 4096> scratch;
    while (::read(fd, scratch.data(), scratch.size()) > 0) {
    }
    ::close(fd);
}

PipeFeeder::PipeFeeder(std::filesystem::path fifo, int rate, std::function<std::int16_t(std::size_t)> sound,
                       std::size_t length)
    : m_fifo(std::move(fifo)),
      m_rate(rate),
      m_sound(std::move(sound)),
      m_length(length),
      m_block(static_cast<std::size_t>(rate / 1000)),  // a millisecond a block
      m_thread([this] { run(); }) {}

PipeFeeder::~PipeFeeder() { stop(); }

void PipeFeeder::stop() {
    m_stop = true;
    if (m_thread.joinable()) m_thread.join();
}

PipeFeeder::Clock::time_point PipeFeeder::writtenAt(std::size_t index) const {
    std::lock_guard lock(m_timesLock);
    const std::size_t block = index / m_block;
    return block < m_blockTimes.size() ? m_blockTimes[block] : Clock::time_point::max();
}

void PipeFeeder::run() {
    const int fd = ::open(m_fifo.c_str(), O_WRONLY);
    if (fd < 0) return;
    const Clock::time_point begin = Clock::now();
    std::vector<std::int16_t> block(m_block);
    for (std::size_t done = 0; !m_stop && done < m_length;) {
        const std::size_t count = std::min(m_block, m_length - done);
        for (std::size_t i = 0; i < count; ++i) block[i] = m_sound(done + i);
        if (::write(fd, block.data(), count * 2) != static_cast<ssize_t>(count * 2)) break;
        {
            std::lock_guard lock(m_timesLock);
            m_blockTimes.push_back(Clock::now());
        }
        done += count;
        m_written = done;
        std::this_thread::sleep_until(begin +
                                      std::chrono::microseconds(static_cast<long long>(done) * 1'000'000 / m_rate));
    }
    ::close(fd);
    timespec cpu{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &cpu);
    m_cpuSeconds = static_cast<double>(cpu.tv_sec) + static_cast<double>(cpu.tv_nsec) * 1e-9;
}

MonitorRecording::MonitorRecording(const std::string& sink, int rate, std::filesystem::path file)
    : m_file(std::move(file)) {
    m_process.setStandardOutputFile(QString::fromStdString(m_file.string()));
    m_process.start("parec", {"--raw", "--format=s16le", "--channels=1", "--latency-msec=10",
                              QStringLiteral("--rate=%1").arg(rate), "-d", QString::fromStdString(sink + ".monitor")});
    m_started = m_process.waitForStarted(5000);
    runEventLoop(300);  // connected and recording before the test plays anything
}

MonitorRecording::~MonitorRecording() { stop(); }

std::vector<std::int16_t> MonitorRecording::stop() {
    if (m_started) {
        // parec writes out what it holds only when interrupted, not when terminated.
        ::kill(static_cast<pid_t>(m_process.processId()), SIGINT);
        m_process.waitForFinished(5000);
        m_started = false;
    }
    std::ifstream in(m_file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    std::vector<std::int16_t> samples(bytes.size() / 2);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<std::int16_t>(static_cast<std::uint8_t>(bytes[2 * i]) |
                                               (static_cast<std::uint8_t>(bytes[2 * i + 1]) << 8));
    }
    return samples;
}

PrivatePulseServer::PrivatePulseServer(std::filesystem::path folder) : m_fifo(folder / "capture.fifo") {
    const std::string socket = (folder / "native").string();
    const std::string streamFormat = "format=s16le rate=11025 channels=1";
    std::ofstream config(folder / "server.pa");
    config << "load-module module-native-protocol-unix socket=" << socket << " auth-anonymous=1\n"
           << "load-module module-null-sink sink_name=private_playback " << streamFormat << "\n"
           << "load-module module-pipe-source source_name=private_capture file=" << m_fifo.string() << " "
           << streamFormat << "\n"
           << "set-default-sink private_playback\nset-default-source private_capture\n";
    config.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PULSE_RUNTIME_PATH", QString::fromStdString(folder.string()));
    environment.insert("HOME", QString::fromStdString(folder.string()));
    m_process.setProcessEnvironment(environment);
    m_process.setStandardOutputFile(QString::fromStdString((folder / "server.log").string()));
    m_process.setStandardErrorFile(QString::fromStdString((folder / "server.log").string()), QIODevice::Append);
    m_process.start("pulseaudio", {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                                   QString::fromStdString("--file=" + (folder / "server.pa").string())});
    if (!m_process.waitForStarted(5000)) return;
    const std::string server = "unix:" + socket;
    for (int i = 0; i < 100 && !m_running; ++i) {
        m_running = findTestDevices(server).has_value();
        if (!m_running) std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    if (m_running) ::setenv("PULSE_SERVER", server.c_str(), 1);
}

PrivatePulseServer::~PrivatePulseServer() { stop(); }

void PrivatePulseServer::stop() {
    if (m_process.state() == QProcess::NotRunning) return;
    ::kill(static_cast<pid_t>(m_process.processId()), SIGTERM);
    if (!m_process.waitForFinished(5000)) m_process.kill();
    m_process.waitForFinished(2000);
    m_running = false;
}

std::vector<std::int16_t> makeSpeech(const std::filesystem::path& folder, int rate, const std::string& text) {
    const std::filesystem::path spoken = folder / "spoken.wav", converted = folder / "speech.wav";
    if (runCommand("espeak-ng -w " + quoted(spoken) + " '" + text + "'").exitCode != 0) return {};
    const std::string convert = "sox " + quoted(spoken) + " -r " + std::to_string(rate) + " -c 1 -b 16 ";
    if (runCommand(convert + quoted(converted)).exitCode != 0) return {};
    return WaveLoad(converted).samples;
}

void runEventLoop(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
