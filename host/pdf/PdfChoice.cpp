#include "PdfChoice.h"

#include <algorithm>

#include "JobMarks.h"
#include "LineTypes.h"
#include "Paint.h"

namespace host {

PdfChoice::PdfChoice(const Document& document, const PdfOptions& options)
    : document_(document), options_(options), markLayer_(markLayerOf(document)) {
  for (const LineType& type : lineTypesOf(document)) lineTypes_.push_back(type.color);
  std::sort(lineTypes_.begin(), lineTypes_.end());
  for (const LayerId layer : document.state().layers) {
    if (options.part == PdfPart::Whole || holdsAnything(layer)) layers_.push_back(layer);
  }
}

bool PdfChoice::isLine(const AIColor& color) const {
  if (color.kind != kCustomColor) return false;
  const CustomColorId id = idOfHandle(color.c.c.color, HandleKind::CustomColor, document_.serial());
  return std::binary_search(lineTypes_.begin(), lineTypes_.end(), id);
}

bool PdfChoice::takes(const AIColor& color, LayerId layer) const {
  return options_.part == PdfPart::Whole || isOfMarks(layer) ||
         isLine(color) == (options_.part == PdfPart::Cut);
}

AIPathStyle PdfChoice::taken(const AIPathStyle& style, LayerId layer) const {
  AIPathStyle left = style;
  if (!takes(style.fill.color, layer)) left.fillPaint = 0;
  if (!takes(style.stroke.color, layer)) left.strokePaint = 0;
  if (isLine(style.fill.color)) left.fill.overprint = 1;
  if (isLine(style.stroke.color)) left.stroke.overprint = 1;
  return left;
}

std::string PdfChoice::stepOf(LayerId layer) const {
  const auto step = options_.steps.find(document_.layer(layer)->title);
  return step == options_.steps.end() || isOfMarks(layer) ? std::string() : step->second;
}

bool PdfChoice::holdsAnything(LayerId layer) const {
  std::vector<ArtId> open{document_.layer(layer)->root};
  while (!open.empty()) {
    const Art& art = *document_.art(open.back());
    open.pop_back();
    if (art.hidden || art.guide) continue;
    if (paintsAnything(art, layer)) return true;
    if (art.type != kGroupArt) continue;
    for (ArtId child = art.firstChild; child != 0; child = document_.art(child)->below) open.push_back(child);
  }
  return false;
}

bool PdfChoice::paintsAnything(const Art& art, LayerId layer) const {
  const auto paints = [&](const AIPathStyle& style) {
    const AIPathStyle left = taken(style, layer);
    return paintsFill(left) || paintsStroke(left);
  };
  if (art.style) return paints(*art.style);
  if (!art.body) return false;
  const auto& parts = art.body->parts;
  return std::any_of(parts.begin(), parts.end(),
                     [&](const Body::Part& part) { return paints(part.style); }) ||
         (parts.empty() && !(art.body->box.left > art.body->box.right) && takesPrint(layer));
}

}  // namespace host
