#include "FormatDimension.h"

#include <cmath>

#include "FormatNumber.h"

namespace qRVADM {
namespace {

constexpr double kPointsPerPica = 12.0;

QString FormatPicas(double picas, int precision) {
  double whole = 0;
  const double fraction = std::modf(picas, &whole);
  const QString points = FormatNumber(std::abs(fraction) * kPointsPerPica, precision);
  return FormatNumber(whole, 0) + QLatin1Char('p') + TrimTrailingZeros(points);
}

}  // namespace

QString FormatDimension(Dimension dimension, int precision) {
  if (!std::isfinite(dimension.value)) return {};
  if (precision == -1) precision = DefaultDecimals(dimension.unit);
  if (dimension.unit == kPicaUnits) return FormatPicas(dimension.value, precision);
  bool blank = false;
  const QString suffix = UnitSuffix(dimension.unit, &blank);
  QString text = TrimTrailingZeros(FormatNumber(dimension.value, precision));
  if (blank) text += QLatin1Char(' ');
  return text + suffix;
}

}  // namespace qRVADM
