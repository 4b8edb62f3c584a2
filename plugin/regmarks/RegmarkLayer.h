// The layer that all register marks of a document lie on. It comes with the first mark.
#pragma once

#include "AITypes.h"

namespace Vandrell::Corvane {

constexpr char kRegmarkLayerTitle[] = "Regmark";

// The layer's group, in a layer that is made above all others if there is none yet. Null if the host
// refuses; the document owns it.
AIArtHandle GetRegmarkGroup();

// Takes the layer away with all its marks. Success if there is none; otherwise the host's code.
AIErr ClearRegmarkLayer();

}  // namespace Vandrell::Corvane
