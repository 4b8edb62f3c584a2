// All icons at a glance, for the eye that judges them.
#pragma once

#include <string>
#include <vector>

#include "IconSet.h"

namespace icons {

// A PNG file: the icons on the light ground and below on the dark one, each at 16 pixels, in single and in
// double resolution, with its id and name. Unthemed icons are the same on both grounds.
std::string drawContactSheet(const std::vector<DrawnIcon>& set);

}  // namespace icons
