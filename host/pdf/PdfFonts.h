// Whether the fonts of a drawing's text are at hand on this machine.
#pragma once

#include <string>
#include <vector>

#include "SvgDrawing.h"

namespace host {

// A sentence without a full stop for each font that is not installed: what is set in it, and what stands in
// for it. Only the first family of a list counts, since that is what the drawing was made with.
std::vector<std::string> fontsNotAtHand(const SvgDrawing& drawing);

}  // namespace host
