// The marks of a document, placed by rule.
#pragma once

#include <cstdint>

#include "AITypes.h"

namespace Vandrell::Corvane {

class CutOption;

// Replaces the marks of the current document by a new set, placed as `option.action` says; kMarksManually,
// or an action that is none, changes nothing. `failures` is the number of marks that found no room. After
// an error the old marks are gone, and what was drawn before it stays. kNoArtBoundsErr where a placement
// needs art and there is none, kOutOfMemoryErr for marks too small for the drawing; otherwise the host's
// code.
AIErr PlaceRegmarks(const CutOption& option, std::int32_t& failures);

}  // namespace Vandrell::Corvane
