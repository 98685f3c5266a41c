// The prompt of the command-line tool: every message goes to the error stream, and every question is answered No,
// which ends the operation, as nobody is there to answer it.
#pragma once

#include <iosfwd>

#include "store/Prompt.h"

class ConsolePrompt : public Prompt {
public:
    explicit ConsolePrompt(std::ostream& out) : m_out(out) {}
    void showOk(std::string_view text) override;
    bool askYesNo(std::string_view text) override;
    int shown() const noexcept { return m_shown; }

private:
    std::ostream& m_out;
    int m_shown = 0;
};
