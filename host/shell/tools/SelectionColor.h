// The colour of all that shows what is selected in a drawing.
#pragma once

#include <QRgb>

namespace host {

// Told from white sheets and from the pasteboard alike.
constexpr QRgb kSelectionColor = qRgb(0x1a, 0x6f, 0xff);

}  // namespace host
