// The layers of the current document as a list.
#pragma once

#include <vector>

#include "AILayer.h"

namespace Vandrell::Corvane {

// From the top down. On an error `layers` holds those above it.
AIErr ListLayers(std::vector<AILayerHandle>& layers);

}  // namespace Vandrell::Corvane
