// The prompt of the running program: every message is a modal box over the active window, titled with the
// application's name, in the language in force.
#pragma once

#include "store/Prompt.h"

class MessageBoxPrompt : public Prompt {
public:
    void showOk(std::string_view text) override;
    bool askYesNo(std::string_view text) override;
    std::string inLanguage(std::string_view english) const override;
};
