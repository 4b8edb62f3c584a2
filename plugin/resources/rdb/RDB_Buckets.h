// What the children of a node get once they are many.
#pragma once

#include <array>

#include "RDB_NameIndex.h"

struct RDB_Node;

struct RDB_Buckets {
  std::array<RDB_Node*, kRDBDots + 1> heads{};  // first node of each bucket in the list of children
  RDB_NameIndex names;
};
