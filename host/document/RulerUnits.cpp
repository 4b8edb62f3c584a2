#include "RulerUnits.h"

#include <array>
#include <charconv>

namespace host {
namespace {

constexpr double kInch = 72;
constexpr double kMillimeter = kInch / 25.4;

}  // namespace

RulerUnit rulerUnit(AIRulerUnits units) {
  switch (units) {
    case kInchRuler:
      return {"in", kInch, 3};
    case kCentimeterRuler:
      return {"cm", 10 * kMillimeter, 3};
    case kPicaRuler:
      return {"pc", 12, 3};
    case kMillimeterRuler:
      return {"mm", kMillimeter, 2};
    case kPixelRuler:
      return {"px", 1, 2};
    case kQRuler:
      return {"Q", kMillimeter / 4, 2};
    case kFootRuler:
    case kFootAndInchRuler:
      return {"ft", 12 * kInch, 4};
    case kMeterRuler:
      return {"m", 1000 * kMillimeter, 4};
    case kYardRuler:
      return {"yd", 36 * kInch, 4};
    case kPointRuler:
    case kUnknownRuler:
      break;
  }
  return {"pt", 1, 2};
}

std::string lengthNumber(double points, AIRulerUnits units) {
  const RulerUnit unit = rulerUnit(units);
  std::array<char, 64> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), points / unit.points,
                                          std::chars_format::fixed, unit.decimals);
  if (error != std::errc()) return "-";
  const std::string text(buffer.data(), end);
  const bool isZero = text.find_first_not_of("-0.") == std::string::npos;
  return isZero && text[0] == '-' ? text.substr(1) : text;
}

std::string lengthText(double points, AIRulerUnits units) {
  return lengthNumber(points, units) + " " + rulerUnit(units).sign;
}

}  // namespace host
