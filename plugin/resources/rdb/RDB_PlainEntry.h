// The way most entries of a text file are written, for reading those in one go.
#pragma once

#include <string_view>

// "key" : "value", both in quotes and the value without a backslash.
struct RDB_PlainEntry {
  std::string_view key;  // as RDB_Tokens gives it, with the backslashes
  bool isName;           // the key is one component, without wildcards and escapes
  std::string_view value;
  const char* end;  // behind the white space that ends the value

  // True if such an entry stands between `begin` and `limit`, white space in front of it or not. False says
  // nothing: another reader has to look at the same place. The texts last as long as the bytes do.
  bool Read(const char* begin, const char* limit);
};
