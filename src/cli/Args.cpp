#include "Args.h"

#include <algorithm>

Args::Args(CommandArgs words, std::vector<std::string_view> flags) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (word.size() > 2 && word.substr(0, 2) == "--") {
            const std::string_view name = word.substr(2);
            if (std::find(flags.begin(), flags.end(), name) != flags.end()) {
                m_options.emplace_back(name, std::string_view{});
            } else if (i + 1 < words.size()) {
                m_options.emplace_back(name, words[++i]);
            } else {
                m_error = "option --" + std::string(name) + " needs a value";
            }
        } else {
            m_positional.push_back(word);
        }
    }
}

bool Args::has(std::string_view name) const {
    return std::any_of(m_options.begin(), m_options.end(), [&](const auto& o) { return o.first == name; });
}

std::optional<std::string_view> Args::value(std::string_view name) const {
    for (const auto& option : m_options)
        if (option.first == name) return option.second;
    return std::nullopt;
}

double Args::number(std::string_view name, double fallback) {
    const auto text = value(name);
    if (!text) return fallback;
    double result = 0.0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), result);
    if (error != std::errc{} || end != text->data() + text->size()) {
        m_error = "option --" + std::string(name) + " needs a number, not \"" + std::string(*text) + "\"";
        return fallback;
    }
    return result;
}

long long Args::integer(std::string_view name, long long fallback) {
    const auto text = value(name);
    if (!text) return fallback;
    long long result = 0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), result);
    if (error != std::errc{} || end != text->data() + text->size()) {
        m_error = "option --" + std::string(name) + " needs a whole number, not \"" + std::string(*text) + "\"";
        return fallback;
    }
    return result;
}

void Args::allowOnly(std::vector<std::string_view> known) {
    for (const auto& option : m_options) {
        if (std::find(known.begin(), known.end(), option.first) == known.end()) {
            m_error = "unknown option --" + std::string(option.first);
            return;
        }
    }
}
