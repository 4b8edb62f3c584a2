// The command that paints the selection as a line type.
#pragma once

#include "LineType.h"

namespace Vandrell::Corvane {

// Gives the selected paths the stroke of a line type, whose swatch the document has: see
// EnsureLineTypeSwatch. They stay where they lie. The user is told if anything that is selected could not be
// converted, which is all of it if there is no swatch of a custom colour: without a spot colour of its own
// nothing could be told from other lines. Always 0.
AIErr ConvertSelection(const LineType& lineType);

}  // namespace Vandrell::Corvane
