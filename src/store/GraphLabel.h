// Text labels written along the time axis of a recording, as phonetic marks above the signal, and their file
// beside the recording (stem.mrk): a row of tokens each ended by ";;", with no line breaks. One label reads
// 1;;0;;22050;;4410;;4470;;Vowel;; as a whole file: the count, then per label the first and last sample on screen
// when it was placed, the samples where its text starts and ends, and the text.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

#include "DeclaredText.h"

struct Prompt;

inline constexpr int kGraphLabelSlots = 50;          // the table never holds more labels
inline constexpr std::size_t kLabelTextLimit = 150;  // bytes of one label's text
inline constexpr std::string_view kErrorSavingLabelFile = SONALYS_TEXT("Sonalys", "Error saving File!");

// One label. Sample indices count 16-bit values of the loaded buffer, so they hold only for that recording.
struct GraphLabel {
    std::int32_t ViewFirst = 0;  // first sample on screen when the label was placed
    std::int32_t ViewLast = 0;   // last sample on screen then
    std::int32_t TextFirst = 0;  // sample where the text starts
    std::int32_t TextLast = 0;   // sample where the text ends
    std::string Text;            // bytes as typed, in the code page of the language in use; no zero byte
    std::int32_t Marker = 0;     // 1 while the text is too narrow to draw and a marker stands for it
    std::int32_t Free = 1;       // 1 for an empty slot or a label removed by an edit
    std::int32_t FontSize = 0;   // height used in the last paint
    std::int32_t Touched = 0;    // 1 when the last edit moved or hid it; what undo puts back

    bool operator==(const GraphLabel&) const = default;
};

// The labels of the recording on screen: 50 slots, of which the first count() have been taken.
class GraphLabelTable {
public:
    GraphLabel& operator[](int slot);
    const GraphLabel& operator[](int slot) const;
    int count() const noexcept { return m_count; }      // slots taken, in use or freed, 0..50
    int usedCount() const noexcept;                     // labels with Free 0
    int current() const noexcept { return m_current; }  // the label being worked on, -1 for none
    void setCurrent(int slot);

    // Places a label in the first freed slot, or the next untaken one. Returns its slot, or -1 when all 50 are
    // taken: the table is never overrun.
    int add(GraphLabel label);
    void clear();

    // Writes the .mrk of `recordingPath`. With no label in use nothing at all is done: an existing file stays as
    // it is, and its labels come back at the next opening. Returns 1, or 0 after showing "Error saving File!".
    int WriteLabelFile(const std::filesystem::path& recordingPath, Prompt& prompt) const;
    // Empties the table and fills it from the .mrk of `recordingPath`; a file that cannot be opened leaves it
    // empty, without a message.
    void ReadLabelFile(const std::filesystem::path& recordingPath);
    // Empties the table and fills it from label-file text. A count above 50 is cut to 50; each counted label is
    // in use even when its tokens are missing, and a missing token leaves its field as it was.
    void readLabels(std::istream& in);

private:
    std::array<GraphLabel, kGraphLabelSlots> m_labels{};
    int m_count = 0;
    int m_current = -1;
};

// Reads one token of a label file into `token`. A single semicolon belongs to the token, so texts may hold one;
// ";;" ends it and is not part of it. Returns 1 with the token, or 0 with it empty: at the end of the file before
// ";;", or for an empty token, which stops at once with its second semicolon still unread, so that the token after
// it begins with that semicolon. A token longer than 1024 bytes keeps its first 1024.
int ReadLabelToken(std::string& token, std::istream& file);

// Deletes the .mrk of `recordingPath`, if there is one. Returns false when it is there and cannot be deleted.
bool DeleteLabelFile(const std::filesystem::path& recordingPath);
