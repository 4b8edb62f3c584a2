// The icon of a panel.
#pragma once

#include "AITypes.h"

namespace qRVADM {

// By the resource id of a picture, in its two versions where it has them. 0: none.
void SetPanelIcon(AIPanelRef panel, int iconId);

}  // namespace qRVADM
