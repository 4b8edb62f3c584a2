// What a byte of a text file means to the reader of tokens.
#pragma once

#include <array>

// White space is NUL, TAB, LF, CR and blank.
constexpr bool RDB_IsSpace(int byte) {
  return byte == ' ' || byte == '\n' || byte == '\t' || byte == '\r' || byte == '\0';
}

constexpr bool RDB_IsOctal(int byte) {
  return byte >= '0' && byte <= '7';
}

enum RDB_ByteClass : unsigned char {
  kRDBPlain,          // stands for itself wherever it stands
  kRDBPlainInQuotes,  // has a meaning outside of quotes
  kRDBNeverPlain      // also within quotes, if only that it counts as a line
};

constexpr RDB_ByteClass RDB_ClassOf(int byte) {
  switch (byte) {
    case '"':
    case '\\':
    case '\n':
      return kRDBNeverPlain;
    case ':':
    case '=':
    case '+':
    case '/':
    case '#':
    case ';':
      return kRDBPlainInQuotes;
    default:
      return RDB_IsSpace(byte) ? kRDBPlainInQuotes : kRDBPlain;
  }
}

constexpr std::array<RDB_ByteClass, 256> RDB_MakeByteClasses() {
  std::array<RDB_ByteClass, 256> classes{};
  for (int byte = 0; byte < 256; ++byte) classes[static_cast<unsigned>(byte)] = RDB_ClassOf(byte);
  return classes;
}
