// The grounds that icons are drawn for.
#pragma once

#include "Colour.h"

namespace icons {

struct Theme {
  const char* name;  // part of the file names
  int idOffset;      // from an icon's own id to its version for this theme
  Colour ink;
  Colour ground;  // the one of the theme's grounds on which icons stand out least
};

inline constexpr Theme kLight{"light", 1000, {0x3b, 0x3b, 0x3b}, {0xef, 0xef, 0xef}};
inline constexpr Theme kDark{"dark", 2000, {0xd6, 0xd6, 0xd6}, {0x3a, 0x3a, 0x3a}};
inline constexpr const Theme* kThemes[] = {&kLight, &kDark};

}  // namespace icons
