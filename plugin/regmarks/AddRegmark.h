// One mark into the document.
#pragma once

#include "AITypes.h"
#include "RegmarkStyle.h"

namespace Vandrell::Corvane {

// Draws a mark centred on `point`, in document coordinates, onto the mark layer. Neither the artboard nor
// other art is looked at. The code of the host, or kCannotAddRegmarkErr without a mark layer.
AIErr AddRegmark(const RegmarkStyle& style, const AIRealPoint& point);

}  // namespace Vandrell::Corvane
