// What the user does with a swatch.
#pragma once

#include "AIColor.h"

namespace host {

class Document;

// Give what is selected and can be edited this stroke or this fill. A path without a stroke gets one of a
// point.
void applyToStroke(Document& document, const AIColor& paint);
void applyToFill(Document& document, const AIColor& paint);

// Selects whatever can be selected and has a stroke of this paint, and nothing else.
void selectByStroke(Document& document, const AIColor& paint);

}  // namespace host
