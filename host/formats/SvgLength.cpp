#include "SvgLength.h"

#include <algorithm>
#include <cmath>

#include "SvgScanner.h"

namespace host {
namespace {

struct UnitName {
  std::string_view name;
  SvgUnit unit;
};

constexpr UnitName kUnitNames[] = {
    {"px", SvgUnit::Px}, {"mm", SvgUnit::Mm}, {"pt", SvgUnit::Pt},     {"cm", SvgUnit::Cm},
    {"in", SvgUnit::In}, {"em", SvgUnit::Em}, {"pc", SvgUnit::Pc},     {"q", SvgUnit::Q},
    {"ex", SvgUnit::Ex}, {"ch", SvgUnit::Ch}, {"ic", SvgUnit::Ic},     {"rem", SvgUnit::Rem},
    {"vw", SvgUnit::Vw}, {"vh", SvgUnit::Vh}, {"vmin", SvgUnit::Vmin}, {"vmax", SvgUnit::Vmax}};

// Fonts are not asked how tall their x or how wide their 0 is.
constexpr double kExPerEm = 0.5;
constexpr double kChPerEm = 0.5;
constexpr double kRootFontSize = 16;

double percentBase(SvgAxis axis, const SvgMeasure& measure) {
  if (axis == SvgAxis::X) return measure.width;
  if (axis == SvgAxis::Y) return measure.height;
  return std::sqrt((measure.width * measure.width + measure.height * measure.height) / 2);
}

double relativeBase(SvgUnit unit, SvgAxis axis, const SvgMeasure& measure) {
  switch (unit) {
    case SvgUnit::Percent:
      return percentBase(axis, measure) / 100;
    case SvgUnit::Em:
    case SvgUnit::Ic:
      return measure.fontSize;
    case SvgUnit::Rem:
      return kRootFontSize;
    case SvgUnit::Ex:
      return measure.fontSize * kExPerEm;
    case SvgUnit::Ch:
      return measure.fontSize * kChPerEm;
    case SvgUnit::Vw:
      return measure.width / 100;
    case SvgUnit::Vh:
      return measure.height / 100;
    case SvgUnit::Vmin:
      return std::min(measure.width, measure.height) / 100;
    case SvgUnit::Vmax:
      return std::max(measure.width, measure.height) / 100;
    default:
      return 0;
  }
}

}  // namespace

std::optional<SvgLength> readLength(SvgScanner& scanner) {
  const std::optional<double> value = scanner.number();
  if (!value || !std::isfinite(*value)) return std::nullopt;
  if (scanner.take('%')) return SvgLength{*value, SvgUnit::Percent};
  const std::string_view name = scanner.identifier();
  if (name.empty()) return SvgLength{*value, SvgUnit::None};
  for (const UnitName& known : kUnitNames) {
    if (equalsIgnoringCase(known.name, name)) return SvgLength{*value, known.unit};
  }
  return std::nullopt;
}

std::optional<SvgLength> parseLength(std::string_view text) {
  SvgScanner scanner(withoutBlanksAround(text));
  const std::optional<SvgLength> length = readLength(scanner);
  return scanner.atEnd() ? length : std::nullopt;
}

double pixelsPer(SvgUnit unit) {
  switch (unit) {
    case SvgUnit::None:
    case SvgUnit::Px:
      return 1;
    case SvgUnit::Pt:
      return 96.0 / 72;
    case SvgUnit::Pc:
      return 16;
    case SvgUnit::In:
      return 96;
    case SvgUnit::Cm:
      return 96 / 2.54;
    case SvgUnit::Mm:
      return 96 / 25.4;
    case SvgUnit::Q:
      return 96 / 101.6;
    default:
      return 0;
  }
}

bool isPhysical(SvgUnit unit) {
  return pixelsPer(unit) != 0 && unit != SvgUnit::None && unit != SvgUnit::Px;
}

double userUnits(SvgLength length, SvgAxis axis, const SvgMeasure& measure) {
  const double pixels = pixelsPer(length.unit);
  return length.value * (pixels != 0 ? pixels : relativeBase(length.unit, axis, measure));
}

}  // namespace host
