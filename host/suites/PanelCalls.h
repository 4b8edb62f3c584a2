// What the plug-in of a panel is told, outside any message.
//
// The plug-in may do anything meanwhile, also destroy the panel. What it throws is reported as a failure,
// contexts that it leaves behind are ended. A panel that is gone or without a callback is passed over.
#pragma once

#include <cstdint>

#include "AITypes.h"

namespace host {

class Host;

void tellOfSize(Host& host, AIPanelRef panel);
void tellOfVisibility(Host& host, AIPanelRef panel, bool isVisible);
void tellOfState(Host& host, AIPanelRef panel);
void tellOfFlyoutOpening(Host& host, AIPanelRef panel);
// An undo step named like the item.
void tellOfFlyoutSelection(Host& host, AIPanelRef panel, std::uint32_t itemId);

}  // namespace host
