// Plain text as one component of a key.
#pragma once

#include <string>

// Puts a backslash in front of each backslash, ".", "*", double quote, line feed and carriage return.
std::string EscapeKey(const char* text);
