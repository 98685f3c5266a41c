#include "PacienteRecord.h"

#include "store/TextFormat.h"

std::string ClientFolderName(int code) { return formatText(kClientFolderFormat.data(), code); }
