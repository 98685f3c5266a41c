// sonalys-analyze demo-table: writes the client table of the demo data root, two clients whose folders pac001 and
// pac002 hold the demo recordings. An existing table is never touched.
#include <filesystem>
#include <iostream>
#include <string>

#include "Args.h"
#include "StreamPrompt.h"
#include "clients/CPacienteTable.h"

namespace {

PacienteRecord demoClient(int code, int tipo, std::string_view name, std::string_view birth, std::string_view address,
                          std::string_view city, std::string_view state, std::string_view postalCode,
                          std::string_view homePhone, std::string_view workPhone, std::string_view notes) {
    PacienteRecord r;
    r.Codigo = code;
    r.Tipo = tipo;
    setRecordText(r.Nome, name);
    setRecordText(r.DataNasc, birth);
    setRecordText(r.Endereco, address);
    setRecordText(r.Cidade, city);
    setRecordText(r.Estado, state);
    setRecordText(r.Cep, postalCode);
    setRecordText(r.FoneR, homePhone);
    setRecordText(r.FoneC, workPhone);
    setRecordText(r.Obs, notes);
    return r;
}

}  // namespace

int runDemoTable(CommandArgs words) {
    Args args(words, {});
    args.allowOnly({});
    if (!args.ok() || args.positional().size() != 1) {
        std::cerr << "usage: sonalys-analyze demo-table DATA_ROOT\n";
        return 1;
    }
    StreamPrompt prompt(std::cerr);
    CPacienteTable table{std::string(args.positional()[0]), prompt};
    if (table.TableExists()) {
        std::cerr << table.TablePath().string() << " already exists; it is left as it is\n";
        return 2;
    }
    table.CreateTable();
    // Birth dates are month, day, year; every text is shorter than its field, as the client form keeps it.
    const PacienteRecord clients[] = {
        demoClient(1, 1, "Maria Helena Costa", "03151978", "Rua das Flores, 120", "Campinas", "SP", "13025-320",
                   "(19)3251-4477", "(19)3788-1200", "Teacher; hoarse by the end of the week. Vocal hygiene."),
        demoClient(2, 0, "Joao Pedro Almeida", "11021965", "Avenida Brasil, 455", "Curitiba", "PR", "80010-000",
                   "(41)3322-1890", "", "Sales manager; low pitch after long calls. Follow-up every two weeks."),
    };
    for (const PacienteRecord& client : clients) {
        if (table.InsertClient(client) != 1) return 2;
    }
    return 0;
}
