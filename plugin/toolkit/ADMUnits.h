// The units of the numbers in dialogs.
#pragma once

#include <QString>
#include <cstdint>

namespace qRVADM {

// Stored by number. 9, 11 and 12 are plain numbers too, as is any other number.
enum ADMUnits : std::int32_t {
  kUnreadableUnits = -99,  // of a text that is no number
  kNoUnits = 0,
  kPointUnits = 1,
  kInchUnits = 2,
  kMillimeterUnits = 3,
  kCentimeterUnits = 4,
  kPicaUnits = 5,
  kPercentUnits = 6,
  kDegreeUnits = 7,
  kQUnits = 8,
  kPixelUnits = 10,
  kFootUnits = 13,
  kMeterUnits = 14,
  kYardUnits = 15,
  kFootAndInchUnits = 16,  // written in feet alone
};

// 1 for what is no length.
double PointsPerUnit(ADMUnits unit);
int DefaultDecimals(ADMUnits unit);
// What stands behind a number, and whether a blank goes between. Empty for a plain number. Picas have one,
// though their own notation takes its place in the text of a value.
QString UnitSuffix(ADMUnits unit, bool* blank);

}  // namespace qRVADM
