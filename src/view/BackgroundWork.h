// Long analyses run on a thread of their own while the window stays alive: it repaints and its timers run, but the
// person's mouse and key input waits until the analysis has ended, so nothing can change the samples under it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/Prompt.h"

// Runs `work` on a worker thread and returns once it has finished. Meanwhile the event loop of the calling thread
// runs with user input held back; the held input is delivered afterwards. An exception of `work` is thrown again
// here, on the calling thread.
void RunKeepingWindowAlive(const std::function<void()>& work);

// A prompt for work on a worker thread: messages are kept, and shown later on the window's thread through the real
// prompt. A question is answered No, which ends the operation that asked it.
class DeferredPrompt : public Prompt {
public:
    void showOk(std::string_view text) override { m_messages.emplace_back(text); }
    bool askYesNo(std::string_view) override { return false; }
    // Shows the kept messages in order through `prompt` and forgets them.
    void flushTo(Prompt& prompt);

private:
    std::vector<std::string> m_messages;
};
