// The small files that lie beside a recording's sound with the same stem: the date file ".ddt", the label file
// ".mrk", the notes ".txt" and the backup marker ".bkp". Each is named from the recording's path by overwriting its
// last three characters, so the rule holds as well for a file outside a client folder.
#pragma once

#include <filesystem>
#include <string_view>

// `recordingPath` with its last three characters replaced by `threeLetters` ("ddt", "mrk", "txt"). A name of fewer
// than three characters is replaced whole.
std::filesystem::path SideFilePath(const std::filesystem::path& recordingPath, std::string_view threeLetters);
