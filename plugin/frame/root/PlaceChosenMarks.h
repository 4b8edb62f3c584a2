// What follows when the options of register marks were accepted.
#pragma once

#include "AITypes.h"

namespace Vandrell::Corvane {

class CutOption;
class CutTool;

// Selects the tool of the chosen shape, which may be null, and places the marks that the options ask for. The
// user is told of marks that found no room. Their number also stands in the integer preference
// "Corvane"/"LastNotPlaced" afterwards, for whoever drives a host without a window. The code of
// PlaceRegmarks.
AIErr PlaceChosenMarks(const CutOption& option, const CutTool* tool);

}  // namespace Vandrell::Corvane
