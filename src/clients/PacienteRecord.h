// One client as the dialogs and the main frame hold it: a plain record copied by value. Each text is kept
// NUL-terminated in a buffer one byte longer than its field in the client table (the name more so); the bytes are
// those typed, in the system's code page, and are never converted.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

struct PacienteRecord {
    std::int32_t Codigo = -1;  // the client code, 1 and up; -1 is no client
    char Nome[64] = {};
    std::int32_t Tipo = 0;   // 0 Man, 1 Woman, 2 Child, 3 Singer
    char DataNasc[13] = {};  // empty, or eight digits month, day, year ("%02d%02d%04d")
    char Endereco[61] = {};
    char Cidade[31] = {};
    char Estado[5] = {};
    char Cep[13] = {};
    char FoneR[15] = {};
    char FoneC[15] = {};
    char Obs[101] = {};
};

// The text held in a buffer: up to its NUL, or the whole buffer if a careless writer left none.
template <std::size_t N>
std::string_view recordText(const char (&buffer)[N]) noexcept {
    return {buffer, static_cast<std::size_t>(std::find(buffer, buffer + N, '\0') - buffer)};
}

// Copies as much of `text` as the buffer holds, leaving room for the NUL.
template <std::size_t N>
void setRecordText(char (&buffer)[N], std::string_view text) noexcept {
    const std::size_t length = text.size() < N ? text.size() : N - 1;
    if (length != 0) std::memcpy(buffer, text.data(), length);
    std::memset(buffer + length, 0, N - length);
}

// The folder of a client's recordings, relative to the data root: code 7 gives "pac007", code 1000 "pac1000".
inline constexpr std::string_view kClientFolderFormat = "pac%03d";
std::string ClientFolderName(int code);
