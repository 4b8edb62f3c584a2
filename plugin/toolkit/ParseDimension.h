// A typed text as a number with its unit.
#pragma once

#include <QString>

#include "Dimension.h"

namespace qRVADM {

// As the host's evaluator reads it: whatever units were typed, the result is in `unit`, as is a number typed
// without any. `defaultValue`, in `unit`, is what the host takes a percentage of. Held between -999999 and
// 1000000. A text that can't be read gives 0 in kUnreadableUnits.
Dimension ParseDimension(const QString& text, ADMUnits unit, double defaultValue);

}  // namespace qRVADM
