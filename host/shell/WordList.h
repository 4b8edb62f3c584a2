// Several names in a sentence.
#pragma once

#include <string>
#include <vector>

namespace host {

// "a", "a or b", "a, b or c".
std::string wordList(const std::vector<std::string>& words, const std::string& conjunction);

}  // namespace host
