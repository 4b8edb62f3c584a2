// Layers that belong to others: they stay on top of the stack, and their art is never converted.
#pragma once

#include "AILayer.h"

namespace Vandrell::Corvane {

// Told by its title alone. False if the host gives none.
bool IsReservedLayer(AILayerHandle layer);

// Makes them one block at the top of the stack, in reverse order: the one that stood lowest ends on top. Each
// is moved by a copy, so its handle and those of its art are other ones afterwards. Ends at the first code of
// the host's, with what was done until then left as it stands.
AIErr MoveReservedLayersToTop();

}  // namespace Vandrell::Corvane
