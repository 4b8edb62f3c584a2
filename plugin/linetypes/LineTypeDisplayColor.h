// The paint to show a line type by.
#pragma once

#include "LineType.h"

namespace Vandrell::Corvane {

// The record's own paint; of a definition its components as a CMYK or RGB paint, Lab by way of the host's
// conversion. kNoneColor for a definition of no known kind, or if the host refuses to convert.
AIColor LineTypeDisplayColor(const LineType& lineType);

}  // namespace Vandrell::Corvane
