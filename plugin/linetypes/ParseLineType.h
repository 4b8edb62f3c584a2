// A line type from the text of one element of a definition file.
#pragma once

#include <optional>
#include <string>

#include "LineType.h"

namespace Vandrell::Corvane {

// `text` is JSON. Nullopt if it is not, if a key or a value that the line type needs is missing or wrong, and
// without a name. The name may be of any length.
std::optional<LineType> ParseLineType(const std::string& text);

}  // namespace Vandrell::Corvane
