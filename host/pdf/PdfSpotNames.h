// The names of inks in a PDF file.
#pragma once

#include <string>

#include "SvgDrawing.h"

namespace host {

// What the plate of a custom colour is called: its name, or "All" for the one that register marks are painted
// with; empty for a colour that is printed with the process inks.
std::string plateOf(const CustomColor& color);

// Whether the spot colours of a drawing can go by their names: empty, or a clause on why not, a name that
// means something else there, or one that the file defines twice and differently.
std::string troubleWithSpotNames(const SvgDrawing& drawing);

}  // namespace host
