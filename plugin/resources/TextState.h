// What the text system holds between calls. For the files of this folder only.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "RDB.h"

constexpr std::size_t kLocalePathSize = 512;  // bytes, with the closing NUL
constexpr std::size_t kTextSize = 8192;       // bytes, with the closing NUL

struct TextState {
  char localePathCopy[kLocalePathSize] = "";
  std::optional<std::string> currentLanguage;
  std::vector<std::string> moduleNames;  // in order of registration, without the base module
  RDB_Handle mainDatabase;               // null until a module was read
  RDB_Handle reverseDatabase;            // text to key; null until it is first asked
  RDB_Handle missingDatabase;            // keys known to be missing; null unless they are recorded
  RDB_Text reverseResult;                // what ReverseLookup gave out last
  int textInitialised = 0;
  char result[kTextSize] = "";  // what Localize and its relatives give out
};

// Asked for at every label, and never before the library is loaded.
extern TextState theTextState;

inline TextState& TheTextState() {
  return theTextState;
}

// Copies into the buffer `result` of TheTextState and gives that back. What is longer is cut, in front of the
// first character that is not whole.
const char* InResultBuffer(const char* text, std::size_t length);
