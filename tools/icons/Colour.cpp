#include "Colour.h"

#include <algorithm>
#include <cmath>

namespace icons {
namespace {

double linear(std::uint8_t component) {
  const double value = component / 255.0;
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(Colour colour) {
  return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

}  // namespace

std::string hexOf(Colour colour) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (const std::uint8_t component : {colour.red, colour.green, colour.blue}) {
    text += kDigits[component >> 4];
    text += kDigits[component & 15];
  }
  return text;
}

double contrast(Colour one, Colour other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace icons
