#include "SvgEditPlan.h"

#include <algorithm>
#include <utility>

namespace host {

void SvgNewContent::add(std::string_view text) {
  const bool goesOn = !pieces_.empty() && pieces_.back().moved == 0 && pieces_.back().scope == kNoScope;
  if (!goesOn) pieces_.emplace_back();
  pieces_.back().text += text;
}

void SvgNewContent::addMoved(NodeIndex element) {
  pieces_.push_back({{}, element, kNoScope});
}

void SvgNewContent::addDeclarations(SvgScope scope) {
  pieces_.push_back({{}, 0, scope});
}

void SvgNewContent::add(const SvgNewContent& content) {
  pieces_.insert(pieces_.end(), content.pieces_.begin(), content.pieces_.end());
}

void SvgEditPlan::replace(std::size_t begin, std::size_t end, std::string_view text) {
  SvgNewContent content;
  content.add(text);
  replace(begin, end, std::move(content));
}

void SvgEditPlan::replace(std::size_t begin, std::size_t end, SvgNewContent content) {
  edits_.push_back({begin, end, std::move(content)});
}

void SvgEditPlan::insert(std::size_t offset, SvgNewContent content) {
  replace(offset, offset, std::move(content));
}

void SvgEditPlan::cut(NodeIndex element) {
  const auto [begin, end] = layout_.removal(element);
  edits_.push_back({begin, end, {}});
}

void SvgEditPlan::sort() {
  std::stable_sort(edits_.begin(), edits_.end(), [](const Edit& a, const Edit& b) {
    if (a.begin != b.begin) return a.begin < b.begin;
    return a.begin == a.end && b.begin != b.end;
  });
}

SvgNewContent SvgEditPlan::takeElement(NodeIndex element) {
  sort();
  const SvgNode& node = source_.node(element);
  SvgNewContent content;
  std::size_t at = node.begin;
  for (const Edit* edit : editsBetween(node.begin, node.end)) {
    content.add(source_.utf8(at, edit->begin));
    content.add(edit->content);
    at = edit->end;
  }
  content.add(source_.utf8(at, node.end));
  return content;
}

std::string SvgEditPlan::apply(const SvgPrefixes& prefixes) {
  sort();
  return source_.splice(resolved(0, source_.bytes().size(), prefixes));
}

// Those that lie strictly between two offsets and not inside one another.
std::vector<const SvgEditPlan::Edit*> SvgEditPlan::editsBetween(std::size_t begin, std::size_t end) const {
  std::vector<const Edit*> found;
  auto edit = std::partition_point(edits_.begin(), edits_.end(),
                                   [begin](const Edit& other) { return other.begin <= begin; });
  std::size_t at = begin;
  for (; edit != edits_.end() && edit->begin < end; ++edit) {
    if (edit->begin < at) continue;
    found.push_back(&*edit);
    at = edit->end;
  }
  return found;
}

std::vector<SvgEdit> SvgEditPlan::resolved(std::size_t begin, std::size_t end,
                                           const SvgPrefixes& prefixes) const {
  std::vector<SvgEdit> result;
  for (const Edit* edit : editsBetween(begin, end))
    result.push_back({edit->begin, edit->end, text(edit->content, prefixes)});
  return result;
}

std::string SvgEditPlan::text(const SvgNewContent& content, const SvgPrefixes& prefixes) const {
  std::string joined;
  for (const SvgNewContent::Piece& piece : content.pieces_) {
    joined += piece.text;
    if (piece.scope != kNoScope) joined += prefixes.declarations(piece.scope);
    if (piece.moved != 0) joined += text(piece.moved, prefixes);
  }
  return joined;
}

std::string SvgEditPlan::text(NodeIndex moved, const SvgPrefixes& prefixes) const {
  const SvgNode& node = source_.node(moved);
  std::string joined;
  std::size_t at = node.begin;
  for (const SvgEdit& edit : resolved(node.begin, node.end, prefixes)) {
    joined += source_.utf8(at, edit.begin);
    joined += edit.text;
    at = edit.end;
  }
  return joined + source_.utf8(at, node.end);
}

}  // namespace host
