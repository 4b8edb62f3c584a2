#include "ADMUnits.h"

#include <cstddef>
#include <iterator>

namespace qRVADM {
namespace {

struct UnitRow {
  const char* suffix;  // UTF-8
  bool blank;
  double points;
  int decimals;
};

constexpr UnitRow kPlainNumber{"", false, 1, 3};
constexpr UnitRow kFeet{"ft", true, 864, 3};

constexpr UnitRow kRows[] = {
    kPlainNumber,
    {"pt", true, 1, 3},
    {"in", true, 72, 4},
    {"mm", true, 72 / 25.4, 3},
    {"cm", true, 72 / 2.54, 4},
    {"pc", true, 12, 3},
    {"%", false, 1, 2},
    {"\xC2\xB0", false, 1, 2},
    {"H", true, 72 / 101.6, 3},
    kPlainNumber,
    {"px", true, 1, 3},
    kPlainNumber,
    kPlainNumber,
    kFeet,
    {"m", true, 72 / 0.0254, 3},
    {"yd", true, 2592, 3},
    kFeet,
};

const UnitRow& RowOf(ADMUnits unit) {
  const auto index = static_cast<std::size_t>(unit);
  return unit >= 0 && index < std::size(kRows) ? kRows[index] : kPlainNumber;
}

}  // namespace

double PointsPerUnit(ADMUnits unit) {
  return RowOf(unit).points;
}

int DefaultDecimals(ADMUnits unit) {
  return RowOf(unit).decimals;
}

QString UnitSuffix(ADMUnits unit, bool* blank) {
  const UnitRow& row = RowOf(unit);
  *blank = row.blank;
  return QString::fromUtf8(row.suffix);
}

}  // namespace qRVADM
