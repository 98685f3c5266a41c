#include "GraphLabel.h"

#include <algorithm>
#include <fstream>
#include <istream>
#include <system_error>

#include "FileLookup.h"
#include "Prompt.h"
#include "ReplacingFile.h"
#include "SideFiles.h"
#include "TextFormat.h"
#include "base/Assert.h"

namespace {

constexpr std::size_t kLongestToken = 1024;

std::filesystem::path labelFilePath(const std::filesystem::path& recordingPath) {
    return findFileIgnoringCase(SideFilePath(recordingPath, "mrk"));
}

// A text is taken up to its first zero byte, as a C string would be, and at most 150 bytes of it.
std::string labelText(std::string_view token) {
    token = token.substr(0, token.find('\0'));
    return std::string(token.substr(0, kLabelTextLimit));
}

void readNumber(std::istream& in, std::string& token, std::int32_t& field) {
    if (ReadLabelToken(token, in)) field = truncateToInt32(leadingNumber(token));
}

std::string labelFileText(const std::array<GraphLabel, kGraphLabelSlots>& labels, int used) {
    std::string text = formatText("%d;;", used);
    for (const GraphLabel& label : labels) {
        if (label.Free != 0) continue;
        text += formatText("%d;;%d;;%d;;%d;;", label.ViewFirst, label.ViewLast, label.TextFirst, label.TextLast);
        text += labelText(label.Text);
        text += ";;";
    }
    return text;
}

}  // namespace

GraphLabel& GraphLabelTable::operator[](int slot) {
    SONALYS_ASSERT(0 <= slot && slot < kGraphLabelSlots);
    return m_labels[static_cast<std::size_t>(slot)];
}

const GraphLabel& GraphLabelTable::operator[](int slot) const {
    SONALYS_ASSERT(0 <= slot && slot < kGraphLabelSlots);
    return m_labels[static_cast<std::size_t>(slot)];
}

int GraphLabelTable::usedCount() const noexcept {
    return static_cast<int>(
        std::count_if(m_labels.begin(), m_labels.end(), [](const GraphLabel& l) { return l.Free == 0; }));
}

void GraphLabelTable::setCurrent(int slot) {
    SONALYS_ASSERT(-1 <= slot && slot < m_count);
    m_current = slot;
}

int GraphLabelTable::add(GraphLabel label) {
    label.Free = 0;
    for (int slot = 0; slot < m_count; ++slot) {
        if (m_labels[static_cast<std::size_t>(slot)].Free != 0) {
            m_labels[static_cast<std::size_t>(slot)] = std::move(label);
            return slot;
        }
    }
    if (m_count == kGraphLabelSlots) return -1;
    m_labels[static_cast<std::size_t>(m_count)] = std::move(label);
    return m_count++;
}

void GraphLabelTable::clear() {
    m_labels.fill(GraphLabel{});
    m_count = 0;
    m_current = -1;
}

int GraphLabelTable::WriteLabelFile(const std::filesystem::path& recordingPath, Prompt& prompt) const {
    const int used = usedCount();
    if (used == 0) return 1;
    const std::string text = labelFileText(m_labels, used);
    ReplacingFile file(labelFilePath(recordingPath));
    if (!file.write(text.data(), text.size()) || !file.commit()) {
        prompt.showOk(kErrorSavingLabelFile);
        return 0;
    }
    return 1;
}

void GraphLabelTable::ReadLabelFile(const std::filesystem::path& recordingPath) {
    clear();
    std::ifstream in(labelFilePath(recordingPath), std::ios::binary);
    if (in) readLabels(in);
}

void GraphLabelTable::readLabels(std::istream& in) {
    clear();
    std::string token;
    std::int32_t count = 0;
    readNumber(in, token, count);
    count = std::clamp(count, 0, kGraphLabelSlots);
    for (int slot = 0; slot < count; ++slot) {
        GraphLabel& label = m_labels[static_cast<std::size_t>(slot)];
        label.Free = 0;
        m_count = slot + 1;
        readNumber(in, token, label.ViewFirst);
        readNumber(in, token, label.ViewLast);
        readNumber(in, token, label.TextFirst);
        readNumber(in, token, label.TextLast);
        if (ReadLabelToken(token, in)) label.Text = labelText(token);
    }
}

int ReadLabelToken(std::string& token, std::istream& file) {
    token.clear();
    for (;;) {
        const int c = file.get();
        if (c == std::char_traits<char>::eof()) break;
        if (c == ';' && file.peek() == ';') {
            if (token.empty()) return 0;
            file.get();
            return 1;
        }
        if (token.size() < kLongestToken) token.push_back(static_cast<char>(c));
    }
    token.clear();
    return 0;
}

bool DeleteLabelFile(const std::filesystem::path& recordingPath) {
    const auto found = findExistingFile(SideFilePath(recordingPath, "mrk"));
    if (!found) return true;
    std::error_code error;
    return std::filesystem::remove(*found, error) && !error;
}
