// The files that one icon becomes.
#pragma once

#include <string>
#include <vector>

#include "IconList.h"
#include "Theme.h"

namespace icons {

// Added to the id of a file for its double resolution.
inline constexpr int kDoubleOffset = 4000;

struct IconVersion {
  int id;
  std::string fileName;  // at single resolution
  const Theme* theme;    // whose ink it is drawn in
};

// Icons with these ids ship as SVG; all others as PNG.
bool isSvgId(int id);

// Only these ids have a version for each theme.
bool isThemedId(int id);

// The plain version first, in the light theme's ink, then one a theme where the icon is themed.
std::vector<IconVersion> versionsOf(const Icon& icon);

// "a.png" to "a@2x.png".
std::string doubleNameOf(const std::string& fileName);

}  // namespace icons
