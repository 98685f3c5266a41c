// How core operations talk to the person at the screen: a message with OK alone, or a question with Yes and No.
// The window supplies a real dialog; tests supply a scripted fake. No core library knows which one it has.
#pragma once

#include <string>
#include <string_view>

struct Prompt {
    virtual ~Prompt() = default;
    virtual void showOk(std::string_view text) = 0;    // a message with OK alone
    virtual bool askYesNo(std::string_view text) = 0;  // true for Yes; false (No) ends the operation
    // A declared English text in the language of the screen. A template ("%s", "%d") is looked up through here
    // before it is filled in, since the filled-in text has no translation; this default keeps the English.
    virtual std::string inLanguage(std::string_view english) const { return std::string(english); }
};
