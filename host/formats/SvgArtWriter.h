// Writes art: what changed in that of the file, and new art as new elements.
#pragma once

#include <string>
#include <string_view>
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
  // A copy beside what the element stands for; `tag` holds what changes in it beside name, outline and style.
  SvgNewContent copied(ArtId id, NodeIndex element, const SvgPlace& place, SvgTagEdit tag);
  // The children of a container, each at this place.
  void insertChildren(ArtId container, const SvgSpot& spot) {
    insertRun(writing_.changes.children(container), spot);
  }

 private:
  SvgNewContent content(ArtId id, const SvgPlace& place);
  SvgNewContent moved(ArtId id, NodeIndex element, const SvgPlace& place);
  void copyChildren(ArtId group, NodeIndex element, const SvgPlace& place, SvgEditPlan& plan);
  SvgNewContent newGroup(ArtId id, const SvgPlace& place);
  std::string newPath(ArtId id, const SvgPlace& place);
  std::string newTag(std::string_view element, ArtId id, const SvgPlace& place);
  std::string kindAttribute(std::string_view kind, const SvgPlace& place);
  void insertRun(const std::vector<ArtId>& run, const SvgSpot& spot);

  void editKept(ArtId id, NodeIndex element);
  void editKept(ArtId id, NodeIndex element, SvgTagEdit& tag);
  void editObject(ArtId id, NodeIndex element, SvgTagEdit& tag);
  void editOutline(ArtId id, NodeIndex element, SvgTagEdit& tag);
  void editPathStyle(ArtId id, NodeIndex element, SvgTagEdit& tag);
  bool isHiddenBySwitch(ArtId id, NodeIndex element) const;
  bool looksDifferent(ArtId id) const;

  std::string pathData(ArtId id, const AIRealMatrix& userFromDocument) const;
  bool isShortCompound(ArtId id) const;

  SvgWriting& writing_;
  int movedUnderSheets_ = 0;  // not 0: the rules that apply may be others here, so styles are written out
};

}  // namespace host
