// Measures how long the program takes from its start to a usable main window: the window shown, painted, and
// the event loop idle and ready for the first click. The program is started as a child process several times on
// a copy of the demo data root; each child reports the time since its own process began (as the kernel counts
// it, in clock ticks) and since main() was entered.
//
//   build/bench/startup_app [RUNS]       (use QT_QPA_PLATFORM=offscreen, or a display such as xvfb-run)
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>
#include <QApplication>
#include <QProcess>
#include <QTimer>

#include "app/CAFApp.h"
#include "app/CMainFrame.h"
#include "app/MessageBoxPrompt.h"
#include "view/CAFView.h"

namespace fs = std::filesystem;

namespace {

// Seconds this process has existed, from the kernel's record of its start (10 ms resolution).
double processAgeSeconds() {
    std::ifstream statFile("/proc/self/stat");
    std::string stat((std::istreambuf_iterator<char>(statFile)), std::istreambuf_iterator<char>());
    std::istringstream fields(stat.substr(stat.rfind(')') + 2));
    std::string field;
    for (int i = 3; i <= 22; ++i) fields >> field;  // field 22 is the start time, in clock ticks after boot
    const double started = std::stod(field) / static_cast<double>(sysconf(_SC_CLK_TCK));
    double uptime = 0;
    std::ifstream("/proc/uptime") >> uptime;
    return uptime - started;
}

// Calls `ready` on the first idle pass of the event loop after the main view's first paint.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(std::function<void()> ready) : m_ready(std::move(ready)) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !m_seen && qobject_cast<CAFView*>(watched) != nullptr) {
            m_seen = true;
            QTimer::singleShot(0, this, m_ready);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_ready;
    bool m_seen = false;
};

int runChild(int argc, char* argv[], std::chrono::steady_clock::time_point mainEntered) {
    QApplication application(argc, argv);
    MessageBoxPrompt prompt;
    CAFApp app(fs::current_path(), prompt);
    // Once the main view has been painted, the next pass of the event loop finds the window ready for input.
    PaintWatch watch([&] {
        const double fromMain = std::chrono::duration<double>(std::chrono::steady_clock::now() - mainEntered).count();
        std::printf("%.1f %.1f\n", processAgeSeconds() * 1000.0, fromMain * 1000.0);
        std::fflush(stdout);
        QCoreApplication::exit(0);  // leaves without the exit question
    });
    application.installEventFilter(&watch);
    if (!app.InitInstance({"sonalys"})) return 1;
    const int status = QApplication::exec();
    app.mainFrame()->hide();
    return status;
}

}  // namespace

int main(int argc, char* argv[]) {
    const auto mainEntered = std::chrono::steady_clock::now();
    if (argc > 1 && std::string(argv[1]) == "--child") return runChild(argc, argv, mainEntered);

    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 10;
    const fs::path root = fs::temp_directory_path() / ("sonalys-startup-" + std::to_string(getpid()));
    fs::copy(fs::path(SONALYS_SOURCE_DIR) / "demo", root, fs::copy_options::recursive);
    std::vector<double> fromProcess;
    std::vector<double> fromMain;
    for (int run = 0; run < runs; ++run) {
        QProcess child;
        child.setWorkingDirectory(QString::fromStdString(root.string()));
        child.start(QString::fromStdString(fs::canonical("/proc/self/exe").string()), {"--child"});
        child.waitForFinished(30000);
        double process = 0, main = 0;
        if (std::sscanf(child.readAllStandardOutput().constData(), "%lf %lf", &process, &main) == 2) {
            fromProcess.push_back(process);
            fromMain.push_back(main);
        }
    }
    fs::remove_all(root);
    if (fromProcess.empty()) {
        std::fprintf(stderr, "the program did not start\n");
        return 1;
    }
    std::sort(fromProcess.begin(), fromProcess.end());
    std::sort(fromMain.begin(), fromMain.end());
    std::printf(
        "start-up to a usable window over %zu runs (ms): from process start median %.0f, worst %.0f; "
        "from main() median %.1f, worst %.1f\n",
        fromProcess.size(), fromProcess[fromProcess.size() / 2], fromProcess.back(), fromMain[fromMain.size() / 2],
        fromMain.back());
    return 0;
}
