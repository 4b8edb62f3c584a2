// What the bytes of a text file mean.
#pragma once

#include <array>

// White space is NUL, TAB, LF, CR and blank.
constexpr bool RDB_IsSpace(int byte) {
  return byte == ' ' || byte == '\n' || byte == '\t' || byte == '\r' || byte == '\0';
}

constexpr bool RDB_IsOctal(int byte) {
  return byte >= '0' && byte <= '7';
}

// For each byte whether it stands for itself in a token, outside of quotes too.
constexpr std::array<bool, 256> RDB_MakePlainBytes() {
  std::array<bool, 256> isPlain{};
  for (int byte = 0; byte < 256; ++byte) isPlain[static_cast<unsigned>(byte)] = !RDB_IsSpace(byte);
  for (const char special : {'"', '\\', ':', '=', '+', '/', '#', ';'})
    isPlain[static_cast<unsigned char>(special)] = false;
  return isPlain;
}
