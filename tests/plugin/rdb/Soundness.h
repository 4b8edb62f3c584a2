// What holds for every tree, however it came about. Also used by the fuzz programs.
#pragma once

#include <string>
#include <vector>

#include "RDB_Database.h"

// Null if all links, counts, orders and indices of the tree agree, or else what does not.
const char* WhatIsUnsound(const RDB_Database& db);

// Every node with a value, the root too, in the order of a walk through all buckets.
std::vector<const RDB_Node*> NodesWithValue(const RDB_Database& db);
// From below the root down to the node.
std::vector<RDB_KeyPart> PathTo(const RDB_Node& node);
