// The icons that plug-ins share, drawn from SVG sources on demand.
#pragma once

#include <QByteArray>

#include "Theme.h"

namespace host {

// PNG bytes in the ink of the theme, 16 pixels wide and high times `scale`, which is 1 or 2; the same bytes
// at every call. Empty if there is no icon of this id.
const QByteArray& builtinIcon(int id, Theme theme, int scale);

}  // namespace host
