// One entry of the client list that the client table builds in memory: one row of the table as read.
#pragma once

#include <string>

#include "PacienteRecord.h"

struct PacienteEntry {
    std::string codigoText;  // CODIGO as stored, the full field width: code 12 reads "12  "
    std::string tipoText;    // TIPO as stored
    // Every field: the code and the type as the numbers in the texts above, the nine texts through the cut rule.
    PacienteRecord record;
    // The backup's choice of clients. It starts at 0 with every load, and is never read from or written to the
    // table; it has its own member so that choosing a client never disturbs the client's type.
    int Selected = 0;
};
