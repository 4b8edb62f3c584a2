// A named list of line types of a definition file.
#pragma once

#include <string>
#include <vector>

#include "LineType.h"

namespace Vandrell::Corvane {

// Compared byte for byte.
constexpr char kStandardGroup[] =
    "Standard";                            // shown unless the user chose otherwise; its names are text keys
constexpr char kCustomGroup[] = "Custom";  // the user's own; its names are shown as they are

struct LineTypeGroup {
  std::string name;             // UTF-8
  std::vector<LineType> types;  // in the order of the file
};

}  // namespace Vandrell::Corvane
