// The layers of line types: top-level layers whose titles are names of line types.
#pragma once

#include <string>
#include <vector>

#include "AITypes.h"

namespace Vandrell::Corvane {

// Makes a layer for each of these names, UTF-8, that no layer bears yet: below the reserved layers, which are
// moved to the top if need be, and above all others, in the order of the names. What is there already stays
// as it is. At the first code of the host's it ends, with the layers made until then in place.
AIErr CreateLineTypeLayers(const std::vector<std::string>& names);
AIErr EnsureLineTypeLayer(const std::string& name);

// The topmost layer of this title; null if there is none.
AIErr FindLineTypeLayer(const std::string& name, AILayerHandle& layer);

}  // namespace Vandrell::Corvane
