// Whether the spot colours of a drawing can go by their names in a PDF file.
#pragma once

#include <string>

#include "SvgDrawing.h"

namespace host {

// Empty, or a clause on why not: a name that means something else there, or one that the file defines twice
// and differently.
std::string troubleWithSpotNames(const SvgDrawing& drawing);

}  // namespace host
