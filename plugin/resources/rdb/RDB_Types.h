// The names of the types of values, which are the same for all databases of the process.
#pragma once

#include <string>

// The index of a name: 0 of the empty one, kRDBString of "string"; others get the next at their first use.
// Throws std::bad_alloc.
unsigned RDB_TypeIndex(const std::string& name);
