// A second program for the concurrency test: waits for the start signal (a file named "go" in the data root),
// then inserts COUNT clients with codes FIRST, FIRST+1, ... one insert at a time, as a clinician at another
// computer would. Exits with 0 when every insert succeeded.
#include <chrono>
#include <filesystem>
#include <iostream>
#include <string>
#include <thread>

#include "clients/CPacienteTable.h"
#include "store/Prompt.h"

namespace {

class ErrorStreamPrompt final : public Prompt {
public:
    void showOk(std::string_view text) override { std::cerr << text << "\n"; }
    bool askYesNo(std::string_view text) override {
        std::cerr << text << "\n";
        return false;
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: clients_insert_worker DATA_ROOT FIRST_CODE COUNT\n";
        return 2;
    }
    const std::filesystem::path root = argv[1];
    const int first = std::stoi(argv[2]);
    const int count = std::stoi(argv[3]);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!std::filesystem::exists(root / "go")) {
        if (std::chrono::steady_clock::now() > deadline) return 3;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    ErrorStreamPrompt prompt;
    CPacienteTable table(root, prompt);
    for (int code = first; code < first + count; ++code) {
        PacienteRecord record;
        record.Codigo = code;
        setRecordText(record.Nome, "Worker client " + std::to_string(code));
        if (table.InsertClient(record) != 1) return 1;
    }
    return 0;
}
