// Outlines in the words of path data, for comparing them as a whole.
#pragma once

#include <string>
#include <vector>

#include "Art.h"

namespace host {

// "M 0 0 L 10 0 C 1 2 3 4 5 6 Z", with numbers to three places; a straight side to the start is left to Z.
std::string outlineText(const std::vector<PathGeometry>& paths);

}  // namespace host
