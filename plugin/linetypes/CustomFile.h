// The file of the line types that the user made, as it lies in the presets folder.
#pragma once

#include <string>
#include <vector>

#include "LineType.h"

namespace Vandrell::Corvane {

// Whether a custom file could be read.
enum class CustomFileState {
  Missing,
  Unreadable,  // with some line types before the fault, perhaps
  Incomplete,  // some of its elements are no line types
  Whole
};

// Appends the line types of the file at this path.
CustomFileState ReadCustomFile(const std::string& path, std::vector<LineType>& types);

// Gives what is at this path a second name beside it that was free, so that nothing of it is lost when the
// file is replaced. False if that cannot be done.
bool SetCustomFileAside(const std::string& path);

}  // namespace Vandrell::Corvane
