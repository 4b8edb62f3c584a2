// Text into a buffer of fixed size.
#pragma once

#include <cstddef>

// Copies at most `size` - 1 bytes, closes with NUL, and cuts `target` before the first byte that does not
// begin a whole UTF-8 sequence: a character that does not fit is left out, not broken. With `size` 0
// nothing is written. Gives back `target`.
char* CopyUTF8(char* target, const char* source, std::size_t size);
