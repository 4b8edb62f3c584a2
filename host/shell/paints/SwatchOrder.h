// The swatches of a document in the order in which they are listed for people.
#pragma once

#include <vector>

#include "DocumentState.h"

namespace host {

class Document;

// A swatch, or the heading of the group that the next ones lie in.
struct SwatchEntry {
  SwatchId swatch = 0;      // 0: a heading
  SwatchGroupId group = 0;  // the heading's, or that of the swatch; 0: none
};

// First the swatches without a group, then each group with its own. A group that the document does not list
// counts as none.
std::vector<SwatchEntry> listedSwatches(const Document& document);

}  // namespace host
