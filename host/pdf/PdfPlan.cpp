#include "PdfPlan.h"

#include <algorithm>

#include "Paint.h"
#include "PdfChoice.h"
#include "PdfStrokes.h"

namespace host {
namespace {

bool fillsWithInk(const AIPathStyle& style) {
  return paintsFill(style) && isInk(style.fill.color);
}

bool strokesWithInk(const AIPathStyle& style) {
  return paintsStroke(style) && isInk(style.stroke.color);
}

bool hasInk(const AIPathStyle& style) {
  return fillsWithInk(style) || strokesWithInk(style);
}

bool hasServer(const AIPathStyle& style) {
  return (paintsFill(style) && isServer(style.fill.color)) ||
         (paintsStroke(style) && isServer(style.stroke.color));
}

// Is what it holds mixed with nothing but what else it holds?
bool closes(const SvgEffect& effect) {
  return effect.isolated || effect.actsOnWhole() || !effect.blendMode.empty();
}

PdfRest restBesideInks(const AIPathStyle& style, bool marked) {
  if (hasServer(style)) return fillsWithInk(style) ? PdfRest::Stroke : PdfRest::Fill;
  return marked ? PdfRest::Markers : PdfRest::None;
}

}  // namespace

bool isInk(const AIColor& color) {
  return color.kind == kCustomColor || color.kind == kFourColor || color.kind == kGrayColor;
}

bool isServer(const AIColor& color) {
  return color.kind == kGradient || color.kind == kPattern;
}

PdfPlan::PdfPlan(const SvgDrawing& drawing, const SvgEffects& effects, const PdfChoice& choice)
    : drawing_(drawing), effects_(effects), choice_(choice), records_(drawing.document->artSlots() + 1) {
  for (const LayerId id : drawing.document->state().layers) survey(id);
}

// From the leaves up and down again, without recursion: drawings nest as deep as their makers like.
void PdfPlan::survey(LayerId layer) {
  const Document& document = *drawing_.document;
  std::vector<ArtId> order{document.layer(layer)->root};
  for (std::size_t i = 0; i < order.size(); ++i) {
    const Art& art = *document.art(order[i]);
    if (art.type != kGroupArt) continue;
    for (ArtId child = art.firstChild; child != 0; child = document.art(child)->below) order.push_back(child);
  }
  for (std::size_t i = order.size(); i-- > 0;) surveyArt(order[i], choice_.isOfMarks(layer));
  for (const ArtId id : order) {
    const Art& art = *document.art(id);
    records_[id].opacity = effectOf(id).opacity * (art.parent == 0 ? 1 : opacityRound(id));
  }
}

void PdfPlan::surveyArt(ArtId id, bool isOfMarks) {
  const Art& art = *drawing_.document->art(id);
  Record& record = records_[id];
  record.element = elementOf(art);
  const SvgEffect& effect = effectOf(id);
  record.isRead |= isOfMarks;
  // librsvg would mix what it holds with nothing but what else it holds, and cairo rounds dots away.
  const bool isOpen = (record.holdsBlend || record.holdsDots) && !effect.actsOnWhole();
  if (art.type == kGroupArt) record.wantsPicture = !isOpen && (record.wantsPicture || effect.actsOnWhole());
  if (art.style) surveyPath(art, effect, record);
  if (art.body) surveyBody(*art.body, record);
  if (record.hasInk && (effect.masked || effect.filtered))
    record.loss = effect.masked ? "its mask" : "its filter";
  if (art.type == kGroupArt) record.overlaps |= art.firstChild != art.lastChild || !effect.blendMode.empty();
  decideFading(effect, record);
  if (art.parent == 0) return;
  Record& round = records_[art.parent];
  round.hasInk |= record.hasInk;
  round.isRead |= record.isRead;
  round.wantsPicture |= record.wantsPicture;
  round.overlaps |= record.overlaps;
  round.holdsDots |= record.holdsDots;
  round.holdsBlend |= (record.holdsBlend && !closes(effect)) || !effect.blendMode.empty();
}

void PdfPlan::decideFading(const SvgEffect& effect, Record& record) {
  const bool fades = effect.opacity < 1 && record.hasInk && record.overlaps;
  const bool blends = !effect.blendMode.empty();
  const bool isolates = record.holdsBlend && closes(effect);
  record.fadesAsOne = !record.isRead && (fades || isolates || (blends && record.overlaps));
  record.isolates = record.fadesAsOne && isolates;
  if (!record.isRead || record.loss != nullptr) return;
  if (fades) record.loss = "that it fades as one: its parts fade each";
  if (isolates) record.loss = "its isolation: what it holds is mixed with what lies below it";
  if (blends) record.loss = "its blend mode";
}

// A layer's root group stands for the layer's element.
NodeIndex PdfPlan::elementOf(const Art& art) const {
  const Layer* layer = drawing_.document->layer(art.rootOf);
  return layer != nullptr ? layer->source : art.source;
}

void PdfPlan::surveyPath(const Art& art, const SvgEffect& effect, Record& record) const {
  const AIPathStyle& style = *art.style;
  const bool hasBoth = paintsFill(style) && paintsStroke(style);
  record.hasInk = hasInk(style);
  record.isRead |= (paintsFill(style) && choice_.isLine(style.fill.color)) ||
                   (paintsStroke(style) && choice_.isLine(style.stroke.color));
  const bool reordered = effect.reordered && (hasBoth || effect.marked);
  const bool strokedOddly = paintsStroke(style) && (effect.stretched || effect.dashesCut);
  record.wantsPicture = effect.masked || effect.filtered || effect.marked || hasServer(style) || reordered ||
                        strokedOddly || (effect.opacity < 1 && hasBoth);
  record.holdsDots = !record.wantsPicture && paintsStroke(style) && isDotted(art);
  if (record.hasInk && record.element != 0) record.rest = restBesideInks(style, effect.marked);
  record.overlaps = hasBoth || record.rest != PdfRest::None;
  if (record.hasInk) record.loss = lossOf(style, effect, record.rest);
}

bool PdfPlan::isDotted(const Art& art) const {
  if (art.style->stroke.cap != kAIProjectingCap) return false;
  if (art.path) return isDot(*art.path);
  for (ArtId child = art.firstChild; child != 0; child = drawing_.document->art(child)->below) {
    const Art& part = *drawing_.document->art(child);
    if (part.path && isDot(*part.path)) return true;
  }
  return false;
}

// The width of a line type means nothing to a table.
const char* PdfPlan::lossOf(const AIPathStyle& style, const SvgEffect& effect, PdfRest rest) const {
  if (effect.marked && rest == PdfRest::Fill) return "its markers";
  if (effect.reordered && (effect.marked || (paintsFill(style) && paintsStroke(style))))
    return "the order that it is painted in";
  if (!paintsStroke(style) || rest == PdfRest::Stroke) return nullptr;
  if (effect.dashesCut) return "the end of its dash pattern";
  return effect.stretched && !choice_.isLine(style.stroke.color) ? "the stretching of its stroke" : nullptr;
}

void PdfPlan::surveyBody(const Body& body, Record& record) const {
  const auto& parts = body.parts;
  // What stands for an image is gray.
  record.hasInk = std::any_of(parts.begin(), parts.end(), [](const Body::Part& part) {
    return hasInk(part.style) && part.style.fill.color.kind != kGrayColor;
  });
  record.isRead |= std::any_of(parts.begin(), parts.end(), [&](const Body::Part& part) {
    return choice_.isLine(part.style.fill.color) || choice_.isLine(part.style.stroke.color);
  });
  record.wantsPicture = true;
  record.overlaps = true;
  if (record.hasInk) record.loss = "that it was text or an instance: it is outlines now";
}

bool PdfPlan::showsPaper() const {
  return !closes(effects_.of(drawing_.source->root()));
}

bool PdfPlan::isFaded(ArtId art) const {
  return effectOf(art).opacity < 1;
}

double PdfPlan::opacityRound(ArtId art) const {
  const ArtId parent = drawing_.document->art(art)->parent;
  return parent == 0 || fadesAsOne(parent) ? 1 : opacityOf(parent);
}

double PdfPlan::fillOpacityOf(ArtId art) const {
  return (fadesAsOne(art) ? 1 : opacityOf(art)) * effectOf(art).fillOpacity;
}

double PdfPlan::strokeOpacityOf(ArtId art) const {
  return (fadesAsOne(art) ? 1 : opacityOf(art)) * effectOf(art).strokeOpacity;
}

}  // namespace host
