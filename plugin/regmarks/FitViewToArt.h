// Brings the artwork into view before it is tested point by point.
#pragma once

#include "AITypes.h"

namespace Vandrell::Corvane {

// Centres the first view of the current document on `art` and zooms out so far that it shows the art with
// two and a half marks of `extent` on each side. A view that already has all art strictly inside stays as
// it is. Nobody puts the view back. Returns the host's code.
AIErr FitViewToArt(const AIRealRect& art, double extent);

}  // namespace Vandrell::Corvane
