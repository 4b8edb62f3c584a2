// The icons that plug-ins have given to their panels.
#pragma once

#include <optional>

namespace host {

// Resource ids of the plug-in that the panel belongs to.
struct PanelIconIds {
  int light = 0;
  int dark = 0;
};

// `panel` is the panel's handle, and only compared. None if no icon is registered for it.
std::optional<PanelIconIds> panelIconIds(const void* panel);

}  // namespace host
