// Puts new elements beside or into elements of the file, laid out like their neighbours.
#pragma once

#include <map>
#include <string>

#include "SvgEditPlan.h"
#include "SvgLayout.h"

namespace host {

// A place for new elements. Each one inserted there comes behind those inserted before.
struct SvgSpot {
  enum class Side { Behind, Before, AtFront, AtEnd };
  Side side = Side::AtEnd;
  NodeIndex anchor = 0;  // the sibling, or else the parent
  NodeIndex parent = 0;
  std::string lineBreak;  // what sets an element off
  std::string indent;     // its children's further indentation
};

// Anchors must be editable.
class SvgInserter {
 public:
  SvgInserter(const SvgSource& source, const SvgLayout& layout, SvgEditPlan& plan)
      : source_(source), layout_(layout), plan_(plan) {}

  SvgSpot behind(NodeIndex sibling) const;
  SvgSpot before(NodeIndex sibling) const;
  SvgSpot inside(NodeIndex parent) const;   // behind the last of its children
  SvgSpot inFront(NodeIndex parent) const;  // before the first one, but behind title and description

  void insert(const SvgSpot& spot, const SvgNewContent& element);
  // To be called once, when all is inserted.
  void finish();

 private:
  SvgSpot beside(NodeIndex sibling, SvgSpot::Side side) const;
  void fill(NodeIndex parent, SvgNewContent content);

  const SvgSource& source_;
  const SvgLayout& layout_;
  SvgEditPlan& plan_;
  std::map<NodeIndex, SvgNewContent> firstContents_;  // of elements that had none
};

}  // namespace host
