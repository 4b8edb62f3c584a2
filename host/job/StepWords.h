// Processing steps as a user writes them.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

// The one that is meant, in letters of any case and also by its type alone ("cutting"); "none" is the empty
// one. Nullopt if there is none.
std::optional<std::string> stepMeantBy(const std::string& text);
// Those that the text may be a slip of; all if it is like none.
std::vector<std::string> stepsLike(const std::string& text);

// Of ASCII only.
std::string inSmallLetters(std::string text);

}  // namespace host
