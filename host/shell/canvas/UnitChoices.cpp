#include "UnitChoices.h"

#include <algorithm>

namespace host {
namespace {

constexpr double kInch = 72;
constexpr double kMillimeter = kInch / 25.4;

}  // namespace

const std::vector<UnitChoice>& unitChoices() {
  static const std::vector<UnitChoice> choices = {
      {kPointRuler, "Points", "pt", 1},
      {kPicaRuler, "Picas", "pc", 12},
      {kInchRuler, "Inches", "in", kInch},
      {kFootRuler, "Feet", "ft", 12 * kInch},
      {kFootAndInchRuler, "Feet and Inches", "ft", 12 * kInch},
      {kYardRuler, "Yards", "yd", 36 * kInch},
      {kMillimeterRuler, "Millimeters", "mm", kMillimeter},
      {kCentimeterRuler, "Centimeters", "cm", 10 * kMillimeter},
      {kMeterRuler, "Meters", "m", 1000 * kMillimeter},
      {kQRuler, "Q", "Q", kMillimeter / 4},
      {kPixelRuler, "Pixels", "px", 1},
  };
  return choices;
}

const UnitChoice& unitChoice(AIRulerUnits units) {
  const std::vector<UnitChoice>& all = unitChoices();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const UnitChoice& choice) { return choice.units == units; });
  return found == all.end() ? all.front() : *found;
}

}  // namespace host
