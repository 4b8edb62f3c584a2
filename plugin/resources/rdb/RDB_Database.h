// What a handle points to.
#pragma once

#include "RDB_Node.h"

struct RDB_Database {
  RDB_Database();

  char marker[8];  // tells a handle from any other pointer; no file carries it
  RDB_Node root;
};

// Both say whether `db` is a database; if not, rdbError is kRDBBadHandle.
bool RDB_IsDatabase(const RDB_Database* db);
// The start of an operation: resets rdbError first.
bool RDB_Begin(const RDB_Database* db);

// Runs `work`; running out of memory in it becomes kRDBOutOfMemory.
template <typename Work>
void RDB_CatchOutOfMemory(const Work& work) {
  try {
    work();
  } catch (const std::bad_alloc&) {
    rdbError = kRDBOutOfMemory;
  }
}
