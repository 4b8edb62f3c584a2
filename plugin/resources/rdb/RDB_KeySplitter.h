// Takes a key apart.
#pragma once

#include <string_view>

#include "RDB.h"
#include "RDB_Hash.h"

// `name` as an ordinary component; it has to last as long.
inline RDB_KeyPart RDB_PartOfName(std::string_view name) {
  const unsigned hash = RDB_Hash(name.data(), name.size());
  return {RDB_SlotOfHash(hash), hash, name.size(), name.data()};
}

// Gives the components of a key one by one. Their names are unescaped in place, so the key is used up; they
// last as long as its bytes do.
class RDB_KeySplitter {
 public:
  // `length` bytes and a NUL; there is none before.
  RDB_KeySplitter(char* key, std::size_t length);

  // False at the end of the key.
  bool Next(RDB_KeyPart& part);

 private:
  bool IsAtDots() const;
  void TakeDots(RDB_KeyPart& part);
  void TakeName(RDB_KeyPart& part);
  char* Unescape();

  char* next_;
  char* end_;
  bool hasMore_;  // not the same as standing before a byte: a dot at the end leaves an empty component
};
