#include "ConsolePrompt.h"

#include <ostream>

void ConsolePrompt::showOk(std::string_view text) {
    ++m_shown;
    m_out << text << "\n";
}

bool ConsolePrompt::askYesNo(std::string_view text) {
    ++m_shown;
    m_out << text << " [answered No]\n";
    return false;
}
