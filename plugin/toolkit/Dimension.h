// A number with its unit.
#pragma once

#include "ADMUnits.h"

namespace qRVADM {

struct Dimension {
  double value;
  ADMUnits unit;
};

double ToPoints(Dimension dimension);
// The value in `unit`. A plain number of kNoUnits is taken to be in it already; converted to kNoUnits a
// length becomes its points.
double ConvertDimension(Dimension dimension, ADMUnits unit);

}  // namespace qRVADM
