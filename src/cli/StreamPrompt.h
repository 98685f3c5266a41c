// The prompt of the command-line tool: every message goes to the error stream, and every question is answered No,
// so that nothing is ever done without a person saying so.
#pragma once

#include <ostream>
#include <string_view>

#include "store/Prompt.h"

class StreamPrompt final : public Prompt {
public:
    explicit StreamPrompt(std::ostream& out) : m_out(out) {}
    void showOk(std::string_view text) override {
        ++m_shown;
        m_out << text << "\n";
    }
    bool askYesNo(std::string_view text) override {
        ++m_shown;
        m_out << text << " [answered No]\n";
        return false;
    }
    int shown() const noexcept { return m_shown; }  // how many messages and questions were shown

private:
    std::ostream& m_out;
    int m_shown = 0;
};
