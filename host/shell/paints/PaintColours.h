// What paints look like, and what they are in another colour space.
#pragma once

#include <QColor>

#include "AIColor.h"
#include "ColourConversion.h"

namespace host {

class Document;

class PaintColours {
 public:
  // `document` is the one that the paints belong to, and must outlive this; null: they belong to none.
  explicit PaintColours(const Document* document);

  // Opaque sRGB. A paint server has the colour that stands in for it; no paint, and what the document does
  // not know, is white.
  QColor shown(const AIColor& paint);
  // The nearest paint of the kind, which is kGrayColor, kThreeColor or kFourColor.
  AIColor as(AIColorTag kind, const AIColor& paint);

 private:
  struct Measured {
    ColourSpace space;
    ColourSample sample;
  };
  Measured measured(const AIColor& paint);
  Measured measuredTint(const AIColor& paint);
  ColourSample in(ColourSpace space, const Measured& colour);

  const Document* document_;
  ColourConversion conversion_;
};

}  // namespace host
