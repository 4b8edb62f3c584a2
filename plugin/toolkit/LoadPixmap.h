// Pictures of the plug-in by resource id.
#pragma once

#include <QPixmap>

namespace qRVADM {

// The version for a BrightnessMode, and for a display of `ratio` device pixels a pixel. Below 1.0 and up to
// it a PNG comes in single resolution; an SVG comes in any. What a picture lacks in versions or resolution is
// made up for by the next best file, and the pixmap's device pixel ratio tells which it is. Null if there is
// none. Small pictures, and the knowledge that one is missing, are kept.
QPixmap LoadPixmap(int id, int brightnessMode, double ratio);

}  // namespace qRVADM
