// A scripted stand-in for the person at the screen: it records every text shown, in order, and answers each
// question as the test told it to.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/Prompt.h"

class FakePrompt : public Prompt {
public:
    std::vector<std::string> shown;   // every message and question, in the order shown
    std::deque<bool> answers;         // answers to the coming questions, first first
    bool defaultAnswer = true;        // the answer once `answers` has run out
    std::function<void()> whenShown;  // called as each message or question comes, to look at the screen then

    void showOk(std::string_view text) override { record(text); }
    bool askYesNo(std::string_view text) override {
        record(text);
        if (answers.empty()) return defaultAnswer;
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string last() const { return shown.empty() ? std::string() : shown.back(); }

private:
    void record(std::string_view text) {
        shown.emplace_back(text);
        if (whenShown) whenShown();
    }
};
