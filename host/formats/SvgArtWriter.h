// Writes art: what changed in that of the file, and new art as new elements.
#pragma once

#include <string>
#include <vector>

#include "SvgTagEdit.h"
#include "SvgWriting.h"

namespace host {

class SvgArtWriter {
 public:
  explicit SvgArtWriter(SvgWriting& writing) : writing_(writing) {}

  // Cuts the elements of art that was deleted, or became part of a compound path.
  void cutLost();
  // The edits that make the children of `element` those of `container`, a group or the root group of a
  // layer that the element stands for.
  void writeChildren(ArtId container, NodeIndex element);
  // The children of a group that is new in the file, each behind the place's line break.
  SvgNewContent newChildren(ArtId container, const SvgPlace& place);
  // The elements of the lowest and the topmost child that stay where they are; 0 if none does.
  NodeIndex lowestInPlace(ArtId container) const;
  NodeIndex topmostInPlace(ArtId container) const;

 private:
  SvgNewContent content(ArtId id, const SvgPlace& place);
  SvgNewContent moved(ArtId id, NodeIndex element, const SvgPlace& place);
  SvgNewContent copied(ArtId id, NodeIndex element, const SvgPlace& place);
  SvgNewContent newGroup(ArtId id, const SvgPlace& place);
  std::string newPath(ArtId id, const SvgPlace& place);
  std::string newTag(std::string_view element, ArtId id, const SvgPlace& place);
  void insertRun(const std::vector<ArtId>& run, const SvgSpot& spot);

  void editKept(ArtId id, NodeIndex element);
  void editKept(ArtId id, NodeIndex element, SvgTagEdit& tag);
  void editOutline(ArtId id, NodeIndex element, SvgTagEdit& tag);
  void editPathStyle(ArtId id, NodeIndex element, SvgTagEdit& tag);
  bool looksDifferent(ArtId id) const;

  std::string pathData(ArtId id, const AIRealMatrix& userFromDocument) const;
  bool isShortCompound(ArtId id) const;

  SvgWriting& writing_;
  int movedUnderSheets_ = 0;  // not 0: the rules that apply may be others here, so styles are written out
};

}  // namespace host
