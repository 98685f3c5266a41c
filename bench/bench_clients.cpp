// The client table at 10,000 clients: loading the whole list (it must stay well under 50 ms, since every client
// dialog reloads it), finding the next free code, and rewriting the table for one changed client.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "clients/CPacienteTable.h"
#include "clients/DbfTable.h"
#include "clients/TableFileWriter.h"
#include "store/Prompt.h"

namespace {

constexpr int kClients = 10000;

class SilentPrompt final : public Prompt {
public:
    void showOk(std::string_view) override {}
    bool askYesNo(std::string_view) override { return false; }
};

// A data root holding a table of 10,000 clients with every field filled. The codes run over 1..9999 in a
// scrambled order (one of them twice, as 9999 codes is all that four digits hold), so the next free code is found
// only after every code has been seen.
class BenchRoot {
public:
    BenchRoot() {
        m_path = std::filesystem::temp_directory_path() /
                 ("sonalys-bench-clients-" + std::to_string(std::random_device()()));
        std::filesystem::create_directories(m_path);
        DbfTable table = DbfTable::create(kPacienteFields);
        for (int i = 0; i < kClients; ++i) {
            table.appendBlank();
            const std::string n = std::to_string(i);
            table.assign(kCodigo, std::to_string(1 + (static_cast<long long>(i) * 7919) % 9999));
            table.assign(kNome, "Cliente de Teste Numero " + n + " da Silva");
            table.assign(kTipo, std::to_string(i % 4));
            table.assign(kDataNasc, "03151978");
            table.assign(kEndereco, "Rua das Flores, " + n + ", apartamento 12");
            table.assign(kCidade, "Campinas");
            table.assign(kEstado, "SP");
            table.assign(kCep, "13025-320");
            table.assign(kFoneR, "(19)3251-4477");
            table.assign(kFoneC, "(19)3788-1200");
            table.assign(kObs, "Observacoes sobre a voz do cliente " + n + ": rouquidao ao fim do dia.");
        }
        table.write(*openReplacingWriter(m_path / "pacb.dbf"), dbfToday());
    }
    ~BenchRoot() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

const BenchRoot& benchRoot() {
    static const BenchRoot root;
    return root;
}

void BM_LoadClients10000(benchmark::State& state) {
    SilentPrompt prompt;
    CPacienteTable table(benchRoot().path(), prompt);
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.LoadClients());
        if (table.Count() != kClients) state.SkipWithError("the table did not load");
    }
}
BENCHMARK(BM_LoadClients10000)->Unit(benchmark::kMillisecond);

void BM_NextFreeCode10000(benchmark::State& state) {
    SilentPrompt prompt;
    CPacienteTable table(benchRoot().path(), prompt);
    table.LoadClients();
    for (auto _ : state) {
        const int code = table.NextFreeCode();
        benchmark::DoNotOptimize(code);
        if (code != 10000) state.SkipWithError("wrong next free code");
    }
}
BENCHMARK(BM_NextFreeCode10000)->Unit(benchmark::kMicrosecond);

// One client changed: the whole table is written to a new file, flushed to disk and renamed over the old one.
void BM_UpdateClient10000(benchmark::State& state) {
    SilentPrompt prompt;
    CPacienteTable table(benchRoot().path(), prompt);
    const int recordNumber = table.LoadClients("CODIGO=5000");
    const PacienteRecord record = table.EntryAt(0)->record;
    for (auto _ : state) table.UpdateClient(recordNumber, record);
}
BENCHMARK(BM_UpdateClient10000)->Unit(benchmark::kMillisecond);

}  // namespace
