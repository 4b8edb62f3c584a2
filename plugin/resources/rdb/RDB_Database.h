// What a handle points to.
#pragma once

#include <cstring>

#include "RDB_Node.h"

struct RDB_Database {
  RDB_Database();

  char marker[8];  // tells a handle from any other pointer; no file carries it
  RDB_Node root;
};

constexpr char kRDBMarker[] = "-RVRDB-";

// Both say whether `db` is a database; if not, rdbError is kRDBBadHandle.
inline bool RDB_IsDatabase(const RDB_Database* db) {
  const bool isOne = db != nullptr && std::memcmp(db->marker, kRDBMarker, sizeof kRDBMarker) == 0;
  if (!isOne) rdbError = kRDBBadHandle;
  return isOne;
}
// The start of an operation: resets rdbError first.
inline bool RDB_Begin(const RDB_Database* db) {
  rdbError = kRDBNoError;
  return RDB_IsDatabase(db);
}

// Runs `work`; running out of memory in it becomes kRDBOutOfMemory.
template <typename Work>
void RDB_CatchOutOfMemory(const Work& work) {
  try {
    work();
  } catch (const std::bad_alloc&) {
    rdbError = kRDBOutOfMemory;
  }
}
