// Keeps an element as it looks when it goes to another place in the file.
#pragma once

#include "SvgTagEdit.h"
#include "SvgWriting.h"

namespace host {

// Notes in `tag` what the element at its new place needs of its own: a transform, properties that it
// inherited, prefixes. False if the place has the same parent, so that nothing is needed. What the groups
// round its old place did to it besides (clips, masks, filters, opacity) stays behind, as in the document.
bool adaptToPlace(SvgWriting& writing, NodeIndex element, const SvgPlace& place, SvgTagEdit& tag);

}  // namespace host
