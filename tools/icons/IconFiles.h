// The files that icons ship as.
#pragma once

#include <filesystem>
#include <vector>

#include "IconSet.h"

namespace icons {

// Writes png/ and svg/ below `resources`, and last txt/IDToFile.txt, which names the files by resource id:
// one "17201.PNG tool-round-light.png" a line. Files at double resolution are not in the table: whoever reads
// it derives their names and ids. Equal sources give equal bytes. Throws a Fault if a file cannot be written.
void writeIconFiles(const std::vector<DrawnIcon>& set, const std::filesystem::path& resources);

}  // namespace icons
