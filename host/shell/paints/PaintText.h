// Paints in words.
#pragma once

#include <QString>

#include "AIColor.h"

namespace host {

class Document;

// Such as "CMYK 0, 100, 50, 0" in percent, "RGB 255, 0, 0", "Gray 40%", "Cut, 30% tint" or "None". The
// paint belongs to `document`; null: to none.
QString paintText(const AIColor& paint, const Document* document);
// What it is made of: of a tint also how strong it is, of what kind of colour, and that one's numbers, each
// on a line of its own.
QString paintDefinition(const AIColor& paint, const Document* document);

}  // namespace host
