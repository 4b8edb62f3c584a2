// Colours as numbers in a colour space.
#pragma once

#include <array>
#include <cstddef>

namespace host {

enum class ColourSpace { Gray, RGB, CMYK, Lab };
constexpr std::size_t kColourSpaces = 4;

// The components in their usual order; those that the space does not have are 0. Gray (0 black, 1 white),
// RGB and CMYK run from 0 to 1; Lab has L 0..100, a and b -128..127.
using ColourSample = std::array<double, 4>;

std::size_t componentCount(ColourSpace space);

// The nearest sample whose components lie in their ranges; not a number becomes the lower end.
ColourSample withinRange(ColourSpace space, const ColourSample& sample);

}  // namespace host
