// The artboard that marks have to stay on.
#pragma once

#include "AITypes.h"

namespace Vandrell::Corvane {

// Position of the active artboard of the current document. Returns the host's code.
AIErr GetActiveArtboardRect(AIRealRect& rect);

}  // namespace Vandrell::Corvane
