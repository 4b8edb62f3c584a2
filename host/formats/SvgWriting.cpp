#include "SvgWriting.h"

#include <cmath>

#include "Geometry.h"
#include "SvgContext.h"

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

AIRealMatrix userFromDocument(const SvgWriting& writing, const AIRealMatrix& documentFromUser) {
  AIRealMatrix inverse = kIdentity;
  if (!invert(documentFromUser, inverse)) invert(writing.drawing.documentFromRoot, inverse);
  return inverse;
}

double strokeScale(const AIRealMatrix& documentFromUser) {
  return std::sqrt(std::abs(determinant(documentFromUser)));
}

}  // namespace host
