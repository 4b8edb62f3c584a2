#include "SvgColour.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "SvgScanner.h"

namespace host {
namespace {

constexpr std::size_t kMaxArguments = 5;

// What stands between the brackets of a colour function.
struct Arguments {
  struct Item {
    double value;
    bool percent;
  };
  Item items[kMaxArguments];
  std::size_t count = 0;

  // 1 stands for `whole` without "%".
  double part(std::size_t index, double whole) const {
    const Item& item = items[index];
    return std::clamp(item.percent ? item.value / 100 : item.value / whole, 0.0, 1.0);
  }
  double alpha(std::size_t index) const { return index < count ? part(index, 1) : 1; }
};

double angleFactor(std::string_view unit) {
  if (equalsIgnoringCase(unit, "grad")) return 0.9;
  if (equalsIgnoringCase(unit, "rad")) return 180 / 3.14159265358979323846;
  if (equalsIgnoringCase(unit, "turn")) return 360;
  return unit.empty() || equalsIgnoringCase(unit, "deg") ? 1 : 0;
}

std::optional<Arguments> readArguments(SvgScanner& scanner) {
  Arguments arguments;
  scanner.skipBlanks();
  while (!scanner.take(')')) {
    if (arguments.count == kMaxArguments) return std::nullopt;
    const std::optional<double> value = scanner.number();
    if (!value || !std::isfinite(*value)) return std::nullopt;
    const bool percent = scanner.take('%');
    const double factor = angleFactor(scanner.identifier());
    if (factor == 0) return std::nullopt;
    arguments.items[arguments.count++] = {*value * factor, percent};
    scanner.skipCommaBlanks();
    if (scanner.take('/')) scanner.skipBlanks();
  }
  return arguments;
}

// https://www.w3.org/TR/css-color-4/#hsl-to-rgb
double hslChannel(double hue, double saturation, double lightness, double shift) {
  const double k = std::fmod(shift + hue / 30, 12);
  const double reach = saturation * std::min(lightness, 1 - lightness);
  return lightness - reach * std::max(-1.0, std::min({k - 3, 9 - k, 1.0}));
}

SvgColour hsl(double hue, double saturation, double lightness, double alpha) {
  hue = std::fmod(std::fmod(hue, 360) + 360, 360);
  return {hslChannel(hue, saturation, lightness, 0), hslChannel(hue, saturation, lightness, 8),
          hslChannel(hue, saturation, lightness, 4), alpha};
}

SvgColour hwb(double hue, double white, double black, double alpha) {
  const double sum = white + black;
  if (sum >= 1) return {white / sum, white / sum, white / sum, alpha};
  const SvgColour pure = hsl(hue, 1, 0.5, alpha);
  const auto mixed = [&](double channel) { return channel * (1 - sum) + white; };
  return {mixed(pure.red), mixed(pure.green), mixed(pure.blue), alpha};
}

// Without a profile, as https://www.w3.org/TR/css-color-5/#device-cmyk has it.
SvgColour deviceCmyk(const Arguments& arguments) {
  const double light = 1 - arguments.part(3, 1);
  const auto channel = [&](std::size_t ink) { return (1 - arguments.part(ink, 1)) * light; };
  return {channel(0), channel(1), channel(2), arguments.alpha(4)};
}

std::optional<SvgColour> functionColour(std::string_view name, const Arguments& arguments) {
  const auto is = [&](std::string_view a, std::string_view b) {
    return equalsIgnoringCase(name, a) || equalsIgnoringCase(name, b);
  };
  const bool threeOrFour = arguments.count == 3 || arguments.count == 4;
  if (is("rgb", "rgba") && threeOrFour) {
    return SvgColour{arguments.part(0, 255), arguments.part(1, 255), arguments.part(2, 255),
                     arguments.alpha(3)};
  }
  if (is("hsl", "hsla") && threeOrFour) {
    return hsl(arguments.items[0].value, arguments.part(1, 100), arguments.part(2, 100), arguments.alpha(3));
  }
  if (is("hwb", "hwb") && threeOrFour) {
    return hwb(arguments.items[0].value, arguments.part(1, 100), arguments.part(2, 100), arguments.alpha(3));
  }
  if (is("device-cmyk", "device-cmyk") && (arguments.count == 4 || arguments.count == 5)) {
    return deviceCmyk(arguments);
  }
  return std::nullopt;
}

int hexDigit(char c) {
  if (isSvgDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The digits behind "#".
std::optional<SvgColour> hexColour(std::string_view digits) {
  const bool isShort = digits.size() == 3 || digits.size() == 4;
  if (!isShort && digits.size() != 6 && digits.size() != 8) return std::nullopt;
  double channels[4] = {0, 0, 0, 1};
  const std::size_t width = isShort ? 1 : 2;
  for (std::size_t i = 0; i < digits.size() / width; ++i) {
    const int high = hexDigit(digits[i * width]);
    const int low = hexDigit(digits[i * width + width - 1]);
    if (high < 0 || low < 0) return std::nullopt;
    channels[i] = (high * 16 + low) / 255.0;
  }
  return SvgColour{channels[0], channels[1], channels[2], channels[3]};
}

bool isDeviceColour(std::string_view name) {
  return name == "icc-color" || name == "device-cmyk";
}

}  // namespace

std::optional<SvgColour> readColour(SvgScanner& scanner) {
  if (scanner.take('#')) return hexColour(scanner.identifier());
  const std::string_view name = scanner.identifier();
  if (!scanner.take('(')) return namedColour(name);
  const std::optional<Arguments> arguments = readArguments(scanner);
  return arguments ? functionColour(name, *arguments) : std::nullopt;
}

std::optional<SvgColour> parseColour(std::string_view text) {
  SvgScanner scanner(withoutBlanksAround(text));
  const std::optional<SvgColour> colour = readColour(scanner);
  scanner.skipBlanks();
  const bool wellEnded = scanner.atEnd() || isDeviceColour(scanner.identifier());
  return wellEnded ? colour : std::nullopt;
}

}  // namespace host
