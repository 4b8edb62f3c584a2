// Finding the node that answers a key.
#pragma once

#include <cstddef>

#include "RDB_Node.h"

// The node with a value that answers the key of `count` parts below `root`, or null. Stored wildcards match;
// in the asked key they are names like any other. At most (nodes below `root`) x (parts) steps. Throws
// std::bad_alloc, and only if wildcards were met.
const RDB_Node* RDB_Lookup(const RDB_Node& root, const RDB_KeyPart* parts, std::size_t count);
