#include "view/BackgroundWork.h"

#include <exception>
#include <string>
#include <thread>

#include <QEventLoop>
#include <QMetaObject>

void RunKeepingWindowAlive(const std::function<void()>& work) {
    QEventLoop loop;
    std::exception_ptr failure;
    std::thread worker([&] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
        // Queued, so that the loop ends even when the work finishes before the loop has started.
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    worker.join();
    if (failure) std::rethrow_exception(failure);
}

void DeferredPrompt::flushTo(Prompt& prompt) {
    std::vector<std::string> messages;
    messages.swap(m_messages);
    for (const std::string& text : messages) prompt.showOk(text);
}
