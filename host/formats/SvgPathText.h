// Path geometry as path data.
#pragma once

#include <string>

#include "Art.h"

namespace host {

// Appends the subpath such as "M 0,0 L 10,0 C 10,5 5,10 0,10 Z": straight sides with L, curves with C, in
// coordinates that `userFromDocument` gives. A path without segments adds nothing.
void appendPathData(std::string& data, const PathGeometry& path, const AIRealMatrix& userFromDocument);

}  // namespace host
