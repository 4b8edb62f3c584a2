// Which line types the selection holds.
#pragma once

#include <set>
#include <string>

namespace Vandrell::Corvane {

// The names, UTF-8, of the line types that selected art is painted as, whatever layers it lies on.
void SelectedLineTypes(std::set<std::string>& names);

}  // namespace Vandrell::Corvane
