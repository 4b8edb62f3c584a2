// A line type as an element of a definition file.
#pragma once

#include "LineType.h"
#include "LineTypeTree.h"

namespace Vandrell::Corvane {

// Fills an empty tree. A custom colour of the document is written as its definition; if the host does not
// know it, std::runtime_error is thrown. Paints that a file cannot hold throw as in ColorTree.h.
void LineTypeToTree(LineTypeTree& tree, const LineType& lineType);

}  // namespace Vandrell::Corvane
