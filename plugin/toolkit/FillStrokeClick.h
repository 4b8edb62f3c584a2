// What a press and a release on the two squares of fill and stroke come to.
#pragma once

#include "ADMRect.h"

namespace qRVADM {

constexpr int kPaintSquareSize = 21;    // pixels
constexpr int kPaintSquareOffset = 10;  // of the stroke's square from the fill's, right and down

enum class FillStrokeClick { kNothing, kBringUp, kCopyFillToStroke, kCopyStrokeToFill };

// Points in the coordinates of the item. `fillActive`: the fill's square lies on top, and what both cover is
// its own; else the stroke's.
FillStrokeClick ClickResult(ADMPoint press, ADMPoint release, bool fillActive);

}  // namespace qRVADM
