// Colours of icons and how well they stand out.
#pragma once

#include <cstdint>
#include <string>

namespace icons {

// sRGB, 0 to 255 a component.
struct Colour {
  std::uint8_t red, green, blue;
};

// "#rrggbb", lower case.
std::string hexOf(Colour colour);

// From 1 (equal) to 21 (black on white); the order does not matter. The formula is "contrast ratio" of
// WCAG 2.1, https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio.
double contrast(Colour one, Colour other);

}  // namespace icons
