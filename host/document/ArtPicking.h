// Which art a user means who points at it, or draws a frame about it.
#pragma once

#include <vector>

#include "Document.h"

namespace host {

// What is drawn of it touches the area, in document units, and it can be edited: locked and hidden art is
// looked through. Paths that are in no compound path, compound paths and art of other kinds; text counts
// letter by letter with its box, a stroke as if its joins and caps were round and it were not dashed.
ArtId topmostArtIn(const Document& document, const AIRealRect& area);  // 0 if there is none
std::vector<ArtId> allArtIn(const Document& document, const AIRealRect& area);

// The group below the layer that art lies in, or the art itself if it lies in none; 0 for the root group.
ArtId outermostOf(const Document& document, ArtId id);

}  // namespace host
