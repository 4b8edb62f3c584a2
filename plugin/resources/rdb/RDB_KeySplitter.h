// Takes a key apart.
#pragma once

#include "RDB.h"

// Gives the components of a key one by one. Their names are unescaped in place, so the key is used up; they
// last as long as its bytes do.
class RDB_KeySplitter {
 public:
  explicit RDB_KeySplitter(char* key);

  // False at the end of the key.
  bool Next(RDB_KeyPart& part);

 private:
  bool IsAtDots() const;
  void TakeDots(RDB_KeyPart& part);
  void TakeName(RDB_KeyPart& part);
  char* Unescape();

  char* next_;
  bool hasMore_;  // not the same as standing before a byte: a dot at the end leaves an empty component
};
