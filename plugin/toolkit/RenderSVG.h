// From the bytes of an SVG file to a pixmap.
#pragma once

#include <QPixmap>

class QByteArray;

namespace qRVADM {

// Half the size of the picture's view box, times the ratio: sources are drawn at twice their nominal size.
// Null if the bytes are no SVG picture, are packed or cut short, or leave nothing or an absurd size to be
// drawn. The pixmap's device pixel ratio is 1.
QPixmap RenderSVG(const QByteArray& bytes, double ratio);

}  // namespace qRVADM
