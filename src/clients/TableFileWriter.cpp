#include "TableFileWriter.h"

#include "store/ReplacingFile.h"

namespace {

class ReplacingTableWriter final : public TableFileWriter {
public:
    explicit ReplacingTableWriter(const std::filesystem::path& target) : m_file(target) {}
    bool write(std::span<const std::uint8_t> bytes) override { return m_file.write(bytes.data(), bytes.size()); }
    bool commit() override { return m_file.commit(); }

private:
    ReplacingFile m_file;
};

}  // namespace

std::unique_ptr<TableFileWriter> openReplacingWriter(const std::filesystem::path& target) {
    return std::make_unique<ReplacingTableWriter>(target);
}
