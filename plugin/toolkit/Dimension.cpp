#include "Dimension.h"

namespace qRVADM {

double ToPoints(Dimension dimension) {
  return dimension.value * PointsPerUnit(dimension.unit);
}

double ConvertDimension(Dimension dimension, ADMUnits unit) {
  if (dimension.unit == unit || dimension.unit == kNoUnits) return dimension.value;
  return ToPoints(dimension) / PointsPerUnit(unit);
}

}  // namespace qRVADM
