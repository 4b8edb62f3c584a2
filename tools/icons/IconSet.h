// A list of icons together with their drawings.
#pragma once

#include <filesystem>
#include <vector>

#include "IconList.h"
#include "IconSource.h"

namespace icons {

struct DrawnIcon {
  Icon icon;
  IconSource source;
};

// Sources lie beside the list. Throws a Fault that names the list and line, or the source, at the first thing
// that is wrong with either.
std::vector<DrawnIcon> readIconSet(const std::filesystem::path& list);

}  // namespace icons
