// A CMYK profile made for tests: small, exact enough to reckon with, and unlike plain inks.
#pragma once

#include <string>

namespace host {

enum class ProfileTables { Both, OnlyToColours };

// The bytes of an ICC profile of class "prtr". Its inks are those of a dull press: the darkest is a gray.
std::string makeCmykProfile(ProfileTables tables = ProfileTables::Both);

}  // namespace host
