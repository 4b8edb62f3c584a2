#include "NumberSample.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace qRVADM {
namespace {

constexpr int kMostDigits = 400;  // a text of every place that a double can have, and then some

int PlacesOf(double limit) {
  const double size = std::min(std::abs(limit), std::numeric_limits<double>::max());
  if (!(size >= 10)) return 0;
  return static_cast<int>(std::log10(size)) + (limit < 0 ? 1 : 0);
}

}  // namespace

int DigitsOfRange(double minimum, double maximum, int decimals) {
  const int places = std::max(PlacesOf(minimum), PlacesOf(maximum));
  return std::clamp(places + std::min(decimals, kMostDigits) + 1, 1, kMostDigits);
}

// A little is added because the logarithm of a power of ten may lie just below a whole number.
int DecimalsOfStep(double step) {
  return static_cast<int>(-std::floor(std::log10(step) + 0.0001));
}

QString SampleNumber(int digits, bool hasDecimals, ADMUnits unit) {
  bool blank = false;
  const QString suffix = UnitSuffix(unit, &blank);
  QString sample(digits, QLatin1Char('0'));
  if (hasDecimals) sample += QLatin1Char('.');
  if (blank) sample += QLatin1Char(' ');
  return sample + suffix;
}

}  // namespace qRVADM
