// Lengths as they are typed on the command line.
#pragma once

#include <optional>
#include <string_view>

namespace host {

// "10pt", "6mm", "0.6cm", "0.25in", "1pc", "8px"; blanks may stand before the unit; a bare number is points.
// In points; nullopt for anything else, and for a number that is negative or not finite.
std::optional<double> pointsOf(std::string_view text);

}  // namespace host
