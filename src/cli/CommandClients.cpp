// sonalys-analyze clients: the client table of a data root as CSV, one row per client, read as the program reads
// it (text fields through the cut rule, numbers as the numbers in their text).
#include <iostream>
#include <string>

#include "Args.h"
#include "StreamPrompt.h"
#include "clients/CPacienteTable.h"

namespace {

// A CSV cell: quoted when it holds a comma, a quote or a line break, with inner quotes doubled.
std::string csvCell(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    std::string cell = "\"";
    for (char c : text) {
        if (c == '"') cell += '"';
        cell += c;
    }
    return cell + "\"";
}

}  // namespace

int runClients(CommandArgs words) {
    Args args(words, {});
    args.allowOnly({"filter"});
    if (!args.ok() || args.positional().size() != 1) {
        std::cerr << "usage: sonalys-analyze clients DATA_ROOT [--filter \"CODIGO=n\"]\n";
        return 1;
    }
    StreamPrompt prompt(std::cerr);
    CPacienteTable table{std::string(args.positional()[0]), prompt};
    if (table.LoadClients(args.value("filter").value_or("")) < 0) return 2;
    std::cout << "code,name,type,birth_date,address,city,state,postal_code,home_phone,work_phone,notes\n";
    for (int i = 0; i < table.Count(); ++i) {
        const PacienteRecord& r = table.EntryAt(i)->record;
        std::cout << r.Codigo << ',' << csvCell(recordText(r.Nome)) << ',' << r.Tipo << ','
                  << csvCell(recordText(r.DataNasc)) << ',' << csvCell(recordText(r.Endereco)) << ','
                  << csvCell(recordText(r.Cidade)) << ',' << csvCell(recordText(r.Estado)) << ','
                  << csvCell(recordText(r.Cep)) << ',' << csvCell(recordText(r.FoneR)) << ','
                  << csvCell(recordText(r.FoneC)) << ',' << csvCell(recordText(r.Obs)) << '\n';
    }
    return 0;
}
