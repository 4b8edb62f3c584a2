// Storing under a key.
#pragma once

#include "RDB_Database.h"

// The node of the `length` bytes of `key`, made with all above it where they are missing. `key` is used up
// (RDB_KeySplitter). Throws std::bad_alloc.
RDB_Node& RDB_MakeNode(RDB_Database& db, char* key, std::size_t length);
