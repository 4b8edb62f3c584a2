// What all parts of the writer share while one file is written.
#pragma once

#include <unordered_map>

#include "SvgChanges.h"
#include "SvgDeclared.h"
#include "SvgEditPlan.h"
#include "SvgInserter.h"
#include "SvgLayout.h"
#include "SvgPrefixes.h"

namespace host {

struct SvgWriting {
  // `source` is the drawing's own, or the same with its entities expanded.
  SvgWriting(const SvgDrawing& drawing, const SvgSource& source);
  SvgWriting(const SvgWriting&) = delete;
  SvgWriting& operator=(const SvgWriting&) = delete;

  // False for an element out of an entity, which is noted in `metEntity`.
  bool canEdit(NodeIndex element);
  // As documentFromContentOf(), but quick for many elements of one parent.
  AIRealMatrix documentFromContent(NodeIndex element);

  const SvgDrawing& drawing;
  const SvgSource& source;
  const Document& document;
  SvgChanges changes;
  SvgLayout layout;
  SvgDeclared declared;
  SvgPrefixes prefixes;
  SvgEditPlan plan;
  SvgInserter inserter;
  bool metEntity = false;

 private:
  std::unordered_map<NodeIndex, AIRealMatrix> documentFromContents_;  // of elements with children
};

// Where new content is going to stand.
struct SvgPlace {
  NodeIndex parent = 0;  // the element of the file that it comes to lie in
  AIRealMatrix userFromDocument{};
  double documentUnitsPerUser = 1;
  std::string lineBreak;  // before the element
  std::string indent;     // one step further in
  SvgScope scope = kRootScope;
};

// Line breaks and scope are left to the caller.
SvgPlace placeInside(SvgWriting& writing, NodeIndex parent);
SvgPlace placeAt(SvgWriting& writing, const SvgSpot& spot);

// A <switch> shows one of its children and hides the others. Once it holds others than it did it has to
// become a plain group; so has a copy of it. `element` is what stands for the group in the file; any other
// than a <switch> is not meant.
bool losesSwitch(const SvgWriting& writing, ArtId group, NodeIndex element);

// Would a reader overlook a group, which has to bear a mark then? One that is loose in the root element is
// nothing to it without a name, attributes and content.
bool isOverlooked(const SvgWriting& writing, ArtId group);

// The inverse of a transform; where that flattens the plane nothing is ever seen, and the root's serves.
AIRealMatrix userFromDocument(const SvgWriting& writing, const AIRealMatrix& documentFromUser);
// By how much a transform scales strokes.
double strokeScale(const AIRealMatrix& documentFromUser);

}  // namespace host
