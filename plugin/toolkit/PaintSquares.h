// The two squares that show a fill and a stroke.
#pragma once

#include "AIColor.h"
#include "IADMDrawer.h"

namespace qRVADM {

// Each is kPaintSquareSize pixels wide and high, with its upper left corner at `corner`, and draws with a
// painter that is gone when this returns, if the drawer makes its own.
void DrawFillSquare(IADMDrawer drawer, ADMPoint corner, const AIColor& fill);
void DrawStrokeSquare(IADMDrawer drawer, ADMPoint corner, const AIColor& stroke);  // with a hole

}  // namespace qRVADM
