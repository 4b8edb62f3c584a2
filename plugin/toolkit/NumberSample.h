// How much room the numbers of a field take.
#pragma once

#include <QString>

#include "ADMUnits.h"

namespace qRVADM {

// For numbers between two limits: places before and behind the decimal sign, and one for a minus. At least 1.
int DigitsOfRange(double minimum, double maximum, int decimals);
// That numbers need which lie `step`, between 0 and 1, apart.
int DecimalsOfStep(double step);
// A number as wide as those of so many digits.
QString SampleNumber(int digits, bool hasDecimals, ADMUnits unit);

}  // namespace qRVADM
