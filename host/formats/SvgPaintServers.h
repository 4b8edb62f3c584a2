// The gradients and patterns of a file.
#pragma once

#include <cstdint>
#include <string_view>

#include "SvgCascade.h"
#include "SvgColour.h"
#include "SvgSource.h"

namespace host {

struct SvgPaintServer {
  enum class Kind : std::uint8_t {
    Missing,  // no such element, or one that doesn't paint
    Nothing,  // a gradient without stops
    Solid,    // a swatch: a gradient that only stands for a colour
    Gradient,
    Pattern
  };
  Kind kind = Kind::Missing;
  SvgColour colour;  // of the first stop; black for a pattern
};

// Stops are looked for along `href`.
SvgPaintServer paintServerOf(const SvgSource& source, const SvgCascade& cascade, std::string_view id);

}  // namespace host
