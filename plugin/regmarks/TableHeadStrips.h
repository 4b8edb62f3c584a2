// Where the strips of the table head lie.
#pragma once

#include <vector>

#include "AITypes.h"

namespace Vandrell::Corvane {

constexpr double kTableHeadStripWidth = 2.0;  // document units, whatever the document scale

// One for each artboard of the current document, in their order: outside of it, along the whole of its left
// edge. Ends before the first artboard that the host does not tell.
std::vector<AIRealRect> TableHeadStrips();

}  // namespace Vandrell::Corvane
