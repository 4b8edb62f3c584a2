// Icons and cursors of tools, as sharp as the display.
#pragma once

#include <QCursor>
#include <QIcon>
#include <cstdint>

#include "Theme.h"

namespace host {

class Host;
class ResourceTable;
struct PanelRecord;
struct ToolRecord;

// Of a plug-in's tool, in single and double resolution, for the ground of the theme; null if it has no
// picture.
QIcon toolIcon(Host& host, const ToolRecord& tool, Theme theme);

// The same for a panel; null if its plug-in has given it none.
QIcon panelIcon(Host& host, const PanelRecord& panel, Theme theme);

// The hot spot is the middle of the picture; without a picture it is a cross. `ratio`: device pixels a pixel.
QCursor pictureCursor(const ResourceTable& pictures, std::int32_t id, double ratio);

}  // namespace host
