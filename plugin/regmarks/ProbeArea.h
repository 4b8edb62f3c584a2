// Is a piece of the document free of art?
#pragma once

#include <cstdint>

#include "AITypes.h"

namespace Vandrell::Corvane {

enum AreaState : std::uint8_t { kNotProbed = 0, kOccupied = 1, kFree = 2 };

// Is any art of the document under this point? A test that the host fails is no hit.
bool IsArtAt(const AIRealPoint& point);

// kOccupied or kFree, by point tests about 2 document units apart, the edges of `rect` included. What is
// narrower than that can be missed. Ends at the first hit.
AreaState ProbeArea(const AIRealRect& rect);

}  // namespace Vandrell::Corvane
