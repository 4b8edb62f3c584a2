#include "SvgInserter.h"

#include <utility>

namespace host {

SvgSpot SvgInserter::beside(NodeIndex sibling, SvgSpot::Side side) const {
  const SvgNode& node = source_.node(sibling);
  return {side, sibling, node.parent, layout_.breakBefore(node.begin), layout_.indent(node.parent)};
}

SvgSpot SvgInserter::behind(NodeIndex sibling) const {
  return beside(sibling, SvgSpot::Side::Behind);
}

SvgSpot SvgInserter::before(NodeIndex sibling) const {
  return beside(sibling, SvgSpot::Side::Before);
}

SvgSpot SvgInserter::inside(NodeIndex parent) const {
  const NodeIndex last = layout_.lastChild(parent);
  if (last != 0 && source_.node(last).editable) return behind(last);
  return {SvgSpot::Side::AtEnd, parent, parent, layout_.childBreak(parent), layout_.indent(parent)};
}

SvgSpot SvgInserter::inFront(NodeIndex parent) const {
  NodeIndex heading = 0;
  NodeIndex child = source_.node(parent).firstChild;
  for (; source_.is(child, "title") || source_.is(child, "desc"); child = source_.node(child).nextSibling) {
    heading = child;
  }
  if (heading != 0 && source_.node(heading).editable) return behind(heading);
  if (child == 0) return inside(parent);
  return {SvgSpot::Side::AtFront, parent, parent, layout_.childBreak(parent), layout_.indent(parent)};
}

void SvgInserter::insert(const SvgSpot& spot, const SvgNewContent& element) {
  SvgNewContent content;
  if (spot.side == SvgSpot::Side::Before) {
    content.add(element);
    content.add(spot.lineBreak);
    plan_.insert(source_.node(spot.anchor).begin, std::move(content));
    return;
  }
  content.add(spot.lineBreak);
  content.add(element);
  if (spot.side == SvgSpot::Side::AtEnd) {
    firstContents_[spot.parent].add(content);
    return;
  }
  const SvgNode& anchor = source_.node(spot.anchor);
  plan_.insert(spot.side == SvgSpot::Side::Behind ? anchor.end : anchor.tagEnd, std::move(content));
}

void SvgInserter::finish() {
  for (auto& [parent, content] : firstContents_) fill(parent, std::move(content));
  firstContents_.clear();
}

void SvgInserter::fill(NodeIndex parent, SvgNewContent content) {
  const SvgNode& node = source_.node(parent);
  const bool isEmptyTag = node.closeBegin == node.end;
  if (!isEmptyTag) {
    if (layout_.breakBefore(node.closeBegin).empty()) content.add(layout_.closeBreak(parent));
    plan_.insert(layout_.contentEnd(parent), std::move(content));
    return;
  }
  SvgNewContent opened;
  opened.add(">");
  opened.add(content);
  opened.add(layout_.closeBreak(parent) + "</" + layout_.endTagName(parent) + ">");
  plan_.replace(source_.attributeInsertion(parent), node.tagEnd, std::move(opened));
}

}  // namespace host
