// What the subcommands share about reading their input files.
#pragma once

#include <string>

// A clear sentence for a reader result code.
std::string describeWaveResult(int code);
