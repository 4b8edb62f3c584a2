// Lengths with their units.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace host {

class SvgScanner;

enum class SvgUnit : std::uint8_t {
  None,
  Px,
  Pt,
  Pc,
  Mm,
  Cm,
  In,
  Q,
  Percent,
  Em,
  Rem,
  Ex,
  Ch,
  Ic,
  Vw,
  Vh,
  Vmin,
  Vmax
};

struct SvgLength {
  double value = 0;  // finite
  SvgUnit unit = SvgUnit::None;
};

enum class SvgAxis : std::uint8_t { X, Y, Diagonal };

// What relative lengths refer to, in user units.
struct SvgMeasure {
  double width = 0;  // of the viewport
  double height = 0;
  double fontSize = 16;
};

// Nullopt for anything but one length with blanks round it.
std::optional<SvgLength> parseLength(std::string_view text);
// A length at the scanner, which moves behind it.
std::optional<SvgLength> readLength(SvgScanner& scanner);
// Pixels in one such unit; 0 for one that is relative.
double pixelsPer(SvgUnit unit);
bool isPhysical(SvgUnit unit);  // a unit of real paper, not px or none
double userUnits(SvgLength length, SvgAxis axis, const SvgMeasure& measure);

}  // namespace host
