// From a shown text back to its key.
#pragma once

// The last component of the key whose text this is, unescaped; null if it is nobody's text. Valid until the
// next call.
const char* ReverseLookup(const char* text);
