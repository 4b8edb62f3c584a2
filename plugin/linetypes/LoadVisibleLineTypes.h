// The line types that the palette lists.
#pragma once

#include <vector>

#include "LineType.h"

namespace Vandrell::Corvane {

// Appends those that the user chose to see, in the order of their groups and in each in that of its file, the
// user's own last; no two of one name. The names are those to show and to give to layers: of the group
// "Standard" they are translated. False, without a word, if the standard file cannot be read.
bool LoadVisibleLineTypes(std::vector<LineType>& types);

}  // namespace Vandrell::Corvane
