// The command that takes the selection to the layers of its line types.
#pragma once

#include <set>
#include <string>

#include "AITypes.h"

namespace Vandrell::Corvane {

// Moves selected art of these line types, UTF-8 names, to the layers named after them, which are made where
// they are missing. Nothing else about the art changes. The user is told of layers that are locked or hidden,
// which nothing is moved to, and of art that is of none of these line types or stayed for another reason.
// Always 0.
AIErr MoveSelection(const std::set<std::string>& names);

// Moves one object to the very bottom of a line type's layer; with no such layer nothing happens. If the
// layer is locked or hidden the object stays and joins `blocked`, with 0 as the result.
AIErr MoveArtToLineTypeLayer(AIArtHandle art, const std::string& name, std::set<AIArtHandle>& blocked);

}  // namespace Vandrell::Corvane
