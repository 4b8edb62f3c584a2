#include "PdfPlan.h"

#include <algorithm>

#include "Paint.h"

namespace host {
namespace {

bool isServer(const AIColor& color) {
  return color.kind == kGradient || color.kind == kPattern;
}

bool hasInk(const AIPathStyle& style) {
  return (paintsFill(style) && isInk(style.fill.color)) || (paintsStroke(style) && isInk(style.stroke.color));
}

bool hasServer(const AIPathStyle& style) {
  return (paintsFill(style) && isServer(style.fill.color)) ||
         (paintsStroke(style) && isServer(style.stroke.color));
}

}  // namespace

bool isInk(const AIColor& color) {
  return color.kind == kCustomColor || color.kind == kFourColor || color.kind == kGrayColor;
}

PdfPlan::PdfPlan(const SvgDrawing& drawing, const SvgEffects& effects)
    : drawing_(drawing), effects_(effects), records_(drawing.document->artSlots() + 1) {
  for (const LayerId id : drawing.document->state().layers) survey(drawing.document->layer(id)->root);
}

// From the leaves up, without recursion: drawings nest as deep as their makers like.
void PdfPlan::survey(ArtId top) {
  const Document& document = *drawing_.document;
  std::vector<ArtId> order{top};
  for (std::size_t i = 0; i < order.size(); ++i) {
    const Art& art = *document.art(order[i]);
    if (art.type != kGroupArt) continue;
    for (ArtId child = art.firstChild; child != 0; child = document.art(child)->below) order.push_back(child);
  }
  for (std::size_t i = order.size(); i-- > 0;) {
    const Art& art = *document.art(order[i]);
    const SvgEffect& effect = effectOf(art);
    Record& record = records_[order[i]];
    record.element = elementOf(art);
    if (art.type == kGroupArt) {
      record.wantsPicture |= effect.actsOnWhole();
    } else {
      surveyLeaf(art, record);
    }
    if (record.hasInk && (effect.masked || effect.filtered))
      record.loss = effect.masked ? "its mask" : "its filter";
    if (order[i] == top) continue;
    records_[art.parent].hasInk |= record.hasInk;
    records_[art.parent].wantsPicture |= record.wantsPicture;
  }
}

// A layer's root group stands for the layer's element.
NodeIndex PdfPlan::elementOf(const Art& art) const {
  return art.rootOf != 0 ? drawing_.document->layer(art.rootOf)->source : art.source;
}

const SvgEffect& PdfPlan::effectOf(const Art& art) const {
  return effects_.of(elementOf(art));
}

void PdfPlan::surveyLeaf(const Art& art, Record& record) const {
  const SvgEffect& effect = effectOf(art);
  if (art.style) {
    const bool bothFade = effect.opacity < 1 && paintsFill(*art.style) && paintsStroke(*art.style);
    record.hasInk = hasInk(*art.style);
    record.wantsPicture =
        effect.masked || effect.filtered || effect.marked || bothFade || hasServer(*art.style);
    if (record.hasInk && effect.marked) record.loss = "its markers";
    if (record.hasInk && hasServer(*art.style)) record.loss = "its gradient or pattern";
  }
  if (!art.body) return;
  const auto& parts = art.body->parts;
  // What stands for an image is gray.
  record.hasInk = std::any_of(parts.begin(), parts.end(), [](const Body::Part& part) {
    return hasInk(part.style) && part.style.fill.color.kind != kGrayColor;
  });
  record.wantsPicture = true;
  if (record.hasInk) record.loss = "that it was text or an instance: it is outlines now";
}

double PdfPlan::opacityOf(ArtId art) const {
  double opacity = 1;
  for (ArtId id = art; id != 0; id = drawing_.document->art(id)->parent) {
    opacity *= effectOf(*drawing_.document->art(id)).opacity;
  }
  return opacity;
}

double PdfPlan::fillOpacityOf(ArtId art) const {
  return opacityOf(art) * effectOf(*drawing_.document->art(art)).fillOpacity;
}

double PdfPlan::strokeOpacityOf(ArtId art) const {
  return opacityOf(art) * effectOf(*drawing_.document->art(art)).strokeOpacity;
}

}  // namespace host
