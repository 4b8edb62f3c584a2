// Marks that a camera could take for one another.
#pragma once

#include "PositionList.h"

namespace Vandrell::Corvane {

// Removes every position that stands closer than `least`, by Manhattan distance in document units, to one
// before it that stays. The order does not change.
void ThinOut(PositionList& positions, double least);

}  // namespace Vandrell::Corvane
