// Colours as attributes and style sheets write them.
#pragma once

#include <optional>
#include <string_view>

namespace host {

class SvgScanner;

// 0..1 each; RGB is sRGB.
struct SvgColour {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
};

// The colour at the scanner, which moves behind it: a name, #rgb, #rgba, #rrggbb, #rrggbbaa, rgb(), rgba(),
// hsl(), hsla(), hwb(), device-cmyk() or `transparent`. Nullopt if none is there.
// https://www.w3.org/TR/css-color-4/
std::optional<SvgColour> readColour(SvgScanner& scanner);
// Nullopt if anything but an icc-color() or device-cmyk() follows the colour.
std::optional<SvgColour> parseColour(std::string_view text);
// Nullopt if there is no such colour; case doesn't matter. `transparent` is one.
std::optional<SvgColour> namedColour(std::string_view name);

}  // namespace host
