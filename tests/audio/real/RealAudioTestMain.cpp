// The tests on a real sound server need an application object, and a quiet sound connection before they end.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <csignal>

#include "audio/SoundSystemExit.h"

int main(int argc, char** argv) {
    // A pipe whose reader went away (a sound server stopped by a test) must not end the test program.
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    letSoundSystemSettle();
    return failed;
}
