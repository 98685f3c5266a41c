// A small reader of command-line words: positional arguments and "--name value" or "--flag" options.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Commands.h"

class Args {
public:
    // `flags` are the options that take no value; every other "--name" takes the word after it.
    Args(CommandArgs words, std::vector<std::string_view> flags);

    bool ok() const noexcept { return m_error.empty(); }
    const std::string& error() const noexcept { return m_error; }
    const std::vector<std::string_view>& positional() const noexcept { return m_positional; }
    bool has(std::string_view name) const;
    std::optional<std::string_view> value(std::string_view name) const;
    // The option as a number, `fallback` when absent; records an error when present but not a number.
    double number(std::string_view name, double fallback);
    long long integer(std::string_view name, long long fallback);
    // Records an error for any option not in `known`.
    void allowOnly(std::vector<std::string_view> known);

private:
    std::vector<std::string_view> m_positional;
    std::vector<std::pair<std::string_view, std::string_view>> m_options;
    std::string m_error;
};
