// The square that one mark takes up.
#pragma once

#include "AITypes.h"

namespace Vandrell::Corvane {

AIRealRect SquareAround(const AIRealPoint& center, double side);

// Does a mark of this extent, centred there, lie wholly on the artboard? Its edge may be touched.
bool FitsOnArtboard(const AIRealPoint& center, double extent, const AIRealRect& artboard);

}  // namespace Vandrell::Corvane
