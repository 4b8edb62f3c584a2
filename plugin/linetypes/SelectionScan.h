// The selection, sorted into what can become a line type and what can't.
#pragma once

#include <set>
#include <vector>

#include "AITypes.h"

namespace Vandrell::Corvane {

// Good within one command: handles do not outlive it.
struct SelectionScan {
  std::vector<AIArtHandle> supported;  // paths and compound paths, from the topmost down
  std::set<AIArtHandle> unsupported;
};

// Groups never count, what is selected in them does. Of art on a reserved layer it is the whole object that
// lies right on the layer that is unsupported. An error of the host's ends the scan with what it has, or
// makes the art unsupported.
void ScanSelection(SelectionScan& scan);

bool HasSelectedArt();  // anything at all

}  // namespace Vandrell::Corvane
