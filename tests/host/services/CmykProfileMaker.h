// A CMYK profile made for tests: small, exact enough to reckon with, and unlike plain inks.
#pragma once

#include <string>

namespace host {

// Inks mix as plain ones do and are then brought to the colours of a dull press, as sRGB on white paper:
// the darkest is a gray of kDarkest, and the purest lie kDullness of their way to the gray of their mean.
constexpr double kDarkest = 0.2;
constexpr double kDullness = 0.3;

enum class ProfileTables { Both, OnlyToColours };

// The bytes of an ICC profile of class "prtr".
std::string makeCmykProfile(ProfileTables tables = ProfileTables::Both);

}  // namespace host
