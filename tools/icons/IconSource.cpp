#include "IconSource.h"

#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "Fault.h"
#include "Theme.h"

namespace icons {
namespace {

constexpr std::string_view kInk = "currentColor";
constexpr double kLeastContrast = 3;  // of graphics, by WCAG 2.1, success criterion 1.4.11

std::uint8_t byteOf(std::string_view hex) {
  unsigned value = 0;
  std::from_chars(hex.data(), hex.data() + hex.size(), value, 16);
  return static_cast<std::uint8_t>(value);
}

// `hex` holds the digits after the number sign.
std::optional<Colour> colourOf(std::string_view hex) {
  if (hex.size() == 3) {
    const std::string wide{hex[0], hex[0], hex[1], hex[1], hex[2], hex[2]};
    return colourOf(wide);
  }
  if (hex.size() != 6) return std::nullopt;
  return Colour{byteOf(hex.substr(0, 2)), byteOf(hex.substr(2, 2)), byteOf(hex.substr(4, 2))};
}

void checkContrast(std::string_view hex) {
  const std::string shown = "#" + std::string(hex);
  const std::optional<Colour> colour = colourOf(hex);
  if (!colour) throw Fault("the colour " + shown + " is not one of 3 or 6 hexadecimal digits");
  if (hexOf(*colour) == "#ffffff") return;
  for (const Theme* theme : kThemes) {
    if (contrast(*colour, theme->ground) >= kLeastContrast) continue;
    throw Fault("the colour " + shown + " does not stand out from the " + theme->name + " ground " +
                hexOf(theme->ground));
  }
}

void checkColours(std::string_view svg) {
  for (std::size_t at = svg.find('#'); at != std::string_view::npos; at = svg.find('#', at + 1)) {
    const std::size_t end = std::min(svg.find_first_not_of("0123456789abcdefABCDEF", at + 1), svg.size());
    checkContrast(svg.substr(at + 1, end - at - 1));
  }
}

}  // namespace

IconSource::IconSource(std::string svg, bool themed) : svg_(std::move(svg)) {
  if (themed && svg_.find(kInk) == std::string::npos) {
    throw Fault("a themed icon needs currentColor, which is replaced by each theme's ink");
  }
  checkColours(svg_);
}

std::string IconSource::inInk(Colour ink) const {
  const std::string hex = hexOf(ink);
  std::string drawn = svg_;
  for (std::size_t at = drawn.find(kInk); at != std::string::npos; at = drawn.find(kInk, at)) {
    drawn.replace(at, kInk.size(), hex);
  }
  return drawn;
}

}  // namespace icons
