// The audio tests need an application object: the devices speak through its event loop.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <csignal>

int main(int argc, char** argv) {
    // A pipe whose reader went away (a sound server stopped by a test) must not end the test program.
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
