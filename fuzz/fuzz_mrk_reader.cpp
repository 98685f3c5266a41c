// Arbitrary bytes as a label file: the table must never be overrun, and labels that the file format can carry
// (a text neither empty nor ending in a semicolon) must come back unchanged when written and read again.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

#include "FuzzScratchFile.h"
#include "base/Assert.h"
#include "store/GraphLabel.h"
#include "store/Prompt.h"

namespace {

struct SilentPrompt : Prompt {
    void showOk(std::string_view) override {}
    bool askYesNo(std::string_view) override { return true; }
};

bool carriesOver(const GraphLabelTable& table) {
    for (int slot = 0; slot < table.count(); ++slot) {
        const std::string& text = table[slot].Text;
        if (text.empty() || text.back() == ';') return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzScratchFile recording("labels.wav");
    static const FuzzScratchFile labelFile("labels.mrk");  // where the labels of `recording` are written
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    GraphLabelTable table;
    table.readLabels(in);
    SONALYS_ASSERT(0 <= table.count() && table.count() <= kGraphLabelSlots);
    for (int slot = 0; slot < table.count(); ++slot) {
        SONALYS_ASSERT(table[slot].Free == 0);
        SONALYS_ASSERT(table[slot].Text.size() <= kLabelTextLimit);
    }
    if (table.usedCount() == 0 || !carriesOver(table)) return 0;

    SilentPrompt prompt;
    SONALYS_ASSERT(table.WriteLabelFile(recording.path(), prompt) == 1);
    GraphLabelTable back;
    back.ReadLabelFile(recording.path());
    SONALYS_ASSERT(back.count() == table.count());
    for (int slot = 0; slot < table.count(); ++slot) SONALYS_ASSERT(back[slot] == table[slot]);
    return 0;
}
