// From the bytes of a PNG file to a pixmap.
#pragma once

#include <QPixmap>

class QByteArray;

namespace qRVADM {

// Null if the bytes are no PNG picture, are cut short or stand for a picture of absurd size. The pixmap's
// device pixel ratio is 1.
QPixmap DecodePNG(const QByteArray& bytes);

}  // namespace qRVADM
