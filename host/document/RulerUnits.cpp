#include "RulerUnits.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace host {
namespace {

constexpr double kInch = 72;
constexpr double kMillimeter = kInch / 25.4;

}  // namespace

const std::vector<RulerUnit>& rulerUnits() {
  static const std::vector<RulerUnit> units = {
      {kPointRuler, "Points", "pt", 1, 2},
      {kPicaRuler, "Picas", "pc", 12, 3},
      {kInchRuler, "Inches", "in", kInch, 3},
      {kFootRuler, "Feet", "ft", 12 * kInch, 4},
      {kFootAndInchRuler, "Feet and Inches", "ft", 12 * kInch, 4},
      {kYardRuler, "Yards", "yd", 36 * kInch, 4},
      {kMillimeterRuler, "Millimeters", "mm", kMillimeter, 2},
      {kCentimeterRuler, "Centimeters", "cm", 10 * kMillimeter, 3},
      {kMeterRuler, "Meters", "m", 1000 * kMillimeter, 4},
      {kQRuler, "Q", "Q", kMillimeter / 4, 2},
      {kPixelRuler, "Pixels", "px", 1, 2},
  };
  return units;
}

const RulerUnit& rulerUnit(AIRulerUnits wanted) {
  const std::vector<RulerUnit>& all = rulerUnits();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const RulerUnit& unit) { return unit.units == wanted; });
  return found == all.end() ? all.front() : *found;
}

std::string lengthNumber(double points, AIRulerUnits units) {
  const RulerUnit& unit = rulerUnit(units);
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
