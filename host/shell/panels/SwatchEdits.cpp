#include "SwatchEdits.h"

#include <functional>
#include <memory>
#include <vector>

#include "Document.h"
#include "Paint.h"
#include "PaintComponents.h"
#include "SelectionCommands.h"

namespace host {
namespace {

void restyleSelection(Document& document, const std::function<void(AIPathStyle&)>& change) {
  const std::vector<ArtId> selected = document.selection();
  for (const ArtId id : selected) {
    const AIPathStyle* const before = document.styleOf(id);
    if (before == nullptr || !document.isEditable(id)) continue;
    AIPathStyle style = *before;
    change(style);
    document.setStyle(id, std::make_shared<const AIPathStyle>(style));
  }
}

}  // namespace

void applyToStroke(Document& document, const AIColor& paint) {
  restyleSelection(document, [&](AIPathStyle& style) {
    if (!paintsStroke(style) && style.stroke.width <= 0) style.stroke.width = 1 / document.scale();
    style.strokePaint = 1;
    style.stroke.color = paint;
  });
}

void applyToFill(Document& document, const AIColor& paint) {
  restyleSelection(document, [&](AIPathStyle& style) {
    style.fillPaint = 1;
    style.fill.color = paint;
  });
}

void selectByStroke(Document& document, const AIColor& paint) {
  std::vector<ArtId> wanted;
  for (const ArtId id : selectableArt(document)) {
    const AIPathStyle* const style = document.styleOf(id);
    if (style != nullptr && paintsStroke(*style) && isSamePaint(style->stroke.color, paint)) {
      wanted.push_back(id);
    }
  }
  selectOnly(document, wanted);
}

}  // namespace host
