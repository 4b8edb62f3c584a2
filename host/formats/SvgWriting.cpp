#include "SvgWriting.h"

#include <cmath>

#include "Geometry.h"
#include "SvgContext.h"
#include "SvgElements.h"

namespace host {

SvgWriting::SvgWriting(const SvgDrawing& fileDrawing, const SvgSource& fileSource)
    : drawing(fileDrawing),
      source(fileSource),
      document(*fileDrawing.document),
      changes(fileDrawing),
      layout(fileSource),
      declared(fileSource),
      prefixes(fileSource),
      plan(fileSource, layout),
      inserter(fileSource, layout, plan) {}

bool SvgWriting::canEdit(NodeIndex element) {
  if (!source.node(element).editable) metEntity = true;
  return source.node(element).editable;
}

AIRealMatrix SvgWriting::documentFromContent(NodeIndex element) {
  const auto known = documentFromContents_.find(element);
  if (known != documentFromContents_.end()) return known->second;
  const bool hasViewport = source.is(element, "svg");
  const AIRealMatrix found = hasViewport ? documentFromContentOf(drawing, element)
                                         : concat(uprightTransformOf(source, element),
                                                  documentFromContent(source.node(element).parent));
  if (hasViewport || source.node(element).firstChild != 0) documentFromContents_.emplace(element, found);
  return found;
}

SvgPlace placeInside(SvgWriting& writing, NodeIndex parent) {
  const AIRealMatrix documentFromUser = writing.documentFromContent(parent);
  SvgPlace place;
  place.parent = parent;
  place.userFromDocument = userFromDocument(writing, documentFromUser);
  place.documentUnitsPerUser = strokeScale(documentFromUser);
  return place;
}

SvgPlace placeAt(SvgWriting& writing, const SvgSpot& spot) {
  SvgPlace place = placeInside(writing, spot.parent);
  place.lineBreak = spot.lineBreak;
  place.indent = spot.indent;
  return place;
}

bool losesSwitch(const SvgWriting& writing, ArtId group, NodeIndex element) {
  const SvgChanges& changes = writing.changes;
  return writing.source.is(element, "switch") &&
         (changes.elementOf(group) != element || changes.children(group) != changes.originalChildren(group));
}

bool isOverlooked(const SvgWriting& writing, ArtId group) {
  const Art& art = *writing.document.art(group);
  const bool isBare = art.type == kGroupArt && art.firstChild == 0 && art.name.empty();
  if (!isBare || art.parent == 0) return false;
  const SvgSource& source = writing.source;
  const Layer* const layer = writing.changes.originalLayer(writing.document.art(art.parent)->rootOf);
  if (layer == nullptr || layer->source != source.root()) return false;
  const NodeIndex element = writing.changes.elementOf(group);
  if (element == 0) return true;
  if (!source.is(element, "g") && !losesSwitch(writing, group, element)) return false;
  const SvgNode& node = source.node(element);
  if (node.parent != source.root()) return true;
  for (NodeIndex child = node.firstChild; child != 0; child = source.node(child).nextSibling) {
    if (kindOf(source, child) == SvgElementKind::None) return false;  // it stays
  }
  return node.attributeCount == 0;
}

AIRealMatrix userFromDocument(const SvgWriting& writing, const AIRealMatrix& documentFromUser) {
  AIRealMatrix inverse = kIdentity;
  if (!invert(documentFromUser, inverse)) invert(writing.drawing.documentFromRoot, inverse);
  return inverse;
}

double strokeScale(const AIRealMatrix& documentFromUser) {
  return std::sqrt(std::abs(determinant(documentFromUser)));
}

}  // namespace host
