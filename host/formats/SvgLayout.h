// How a file is laid out: what stands before an element, and what has to stand before a new one to look
// like its neighbours.
#pragma once

#include <string>
#include <utility>

#include "SvgSource.h"

namespace host {

// Elements passed in must be editable. Texts are UTF-8.
class SvgLayout {
 public:
  explicit SvgLayout(const SvgSource& source) : source_(source) {}

  // The line break and the blanks right before an offset; empty if the line begins with something else.
  std::string breakBefore(std::size_t offset) const;
  // The bytes that go when an element goes: with the line break before it if it has its lines to itself.
  std::pair<std::size_t, std::size_t> removal(NodeIndex element) const;
  // Where content can be added at the end of an element with an end tag: before the blanks that set off
  // the end tag.
  std::size_t contentEnd(NodeIndex element) const;
  // What stands before each of an element's children: as before those it has, else one step further in.
  std::string childBreak(NodeIndex element) const;
  // What stands before the end tag of an element that has had none.
  std::string closeBreak(NodeIndex element) const;
  // The name in the end tag that an empty-element tag gets with its first content, of which a <switch>
  // becomes a plain group.
  std::string endTagName(NodeIndex element) const;
  // By how much the children of an element stand further in than it does; empty without line breaks.
  std::string indent(NodeIndex element) const;
  NodeIndex lastChild(NodeIndex element) const;  // 0 if there is none

 private:
  NodeIndex lastEditableChild(NodeIndex element) const;
  std::size_t blanksBegin(std::size_t offset) const;
  bool hasLineBreaks() const;

  const SvgSource& source_;
};

}  // namespace host
