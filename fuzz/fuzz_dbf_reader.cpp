// Arbitrary bytes as the client table "pacb.dbf": loading must refuse or read them without reading past the end,
// and a change to a table that loads must write a table that loads again.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "clients/CPacienteTable.h"
#include "clients/DbfTable.h"
#include "clients/TableFileWriter.h"
#include "store/Prompt.h"

namespace {

class SilentPrompt final : public Prompt {
public:
    void showOk(std::string_view) override {}
    bool askYesNo(std::string_view) override { return false; }
};

// A data root of its own for the whole run, removed at exit; in memory where the system offers it, since each
// input is written as a file and disks make that slow.
std::filesystem::path scratchFolder() {
    std::error_code error;
    if (std::filesystem::is_directory("/dev/shm", error)) return "/dev/shm";
    return std::filesystem::temp_directory_path();
}

struct FuzzRoot {
    std::filesystem::path path = scratchFolder() / ("sonalys-fuzz-dbf-" + std::to_string(std::random_device()()));
    FuzzRoot() { std::filesystem::create_directories(path); }
    ~FuzzRoot() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};

// Writes the new table straight over the old one, without the flush to disk that makes the program's writes
// slow and safe: a fuzzing run needs speed, not durability.
class QuickWriter final : public TableFileWriter {
public:
    explicit QuickWriter(std::filesystem::path target) : m_target(std::move(target)) {}
    bool write(std::span<const std::uint8_t> bytes) override {
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
        return true;
    }
    bool commit() override {
        std::ofstream out(m_target, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(m_bytes.data()), static_cast<std::streamsize>(m_bytes.size()));
        return static_cast<bool>(out);
    }

private:
    std::filesystem::path m_target;
    std::vector<std::uint8_t> m_bytes;
};

const std::filesystem::path& fuzzRoot() {
    static const FuzzRoot root;
    return root.path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The layer beneath straight from memory, every field of every record.
    DbfOpenResult opened = DbfTable::fromBytes(std::vector<std::uint8_t>(data, data + size));
    if (opened.status == DbfOpenStatus::Ok) {
        DbfTable& table = *opened.table;
        for (table.top(); !table.eof(); table.skip()) {
            for (int f = 0; f < table.fieldCount(); ++f) cutFieldText(table.fieldText(f));
        }
    }

    // The client table from a file, then a change and a reload when it loads.
    const std::filesystem::path file = fuzzRoot() / "pacb.dbf";
    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    SilentPrompt prompt;
    CPacienteTable clients(fuzzRoot(), prompt);
    clients.SetWriterFactory([](const std::filesystem::path& target) { return std::make_unique<QuickWriter>(target); });
    if (clients.LoadClients() >= 0) {
        clients.NextFreeCode();
        if (clients.Count() > 0) {
            PacienteRecord record = clients.EntryAt(0)->record;
            clients.UpdateClient(-1, record);
            if (clients.LoadClients() < 0) __builtin_trap();  // a table we wrote must load again
            clients.DeleteClient(1);
            if (clients.LoadClients() < 0) __builtin_trap();
        }
    }
    return 0;
}
