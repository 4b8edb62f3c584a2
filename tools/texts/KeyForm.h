// How a key of the text database is written.
#pragma once

#include <string>
#include <string_view>

namespace texts {

// `text` as the one component of a key: what a sentence is looked up by.
std::string KeyOfText(std::string_view text);

// The one way to write a key that may be written in several: no escapes but the needed ones.
std::string CanonicalKey(const std::string& key);

// For messages: with line ends and tabs as escapes, so that it stays on one line.
std::string OnOneLine(std::string_view text);

}  // namespace texts
