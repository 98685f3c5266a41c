#include "audio/SoundSystemExit.h"

#include <QEventLoop>
#include <QTimer>

namespace {

// Far longer than the server takes to answer; short enough not to be noticed at exit.
constexpr int kSettleMilliseconds = 250;

}  // namespace

void letSoundSystemSettle() {
    QEventLoop loop;
    QTimer::singleShot(kSettleMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
