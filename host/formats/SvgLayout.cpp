#include "SvgLayout.h"

namespace host {
namespace {

constexpr char kStep[] = "  ";

bool isBlank(char16_t unit) {
  return unit == ' ' || unit == '\t';
}
bool isBreak(char16_t unit) {
  return unit == '\n' || unit == '\r';
}

// What follows the last line break.
std::string afterBreak(const std::string& text) {
  const std::size_t at = text.find_last_of("\r\n");
  return at == std::string::npos ? std::string() : text.substr(at + 1);
}

}  // namespace

std::size_t SvgLayout::blanksBegin(std::size_t offset) const {
  const std::size_t step = source_.unitSize();
  while (offset >= step && isBlank(source_.unitAt(offset - step))) offset -= step;
  return offset;
}

std::string SvgLayout::breakBefore(std::size_t offset) const {
  const std::size_t step = source_.unitSize();
  std::size_t begin = blanksBegin(offset);
  if (begin < step || !isBreak(source_.unitAt(begin - step))) return {};
  begin -= step;
  const bool pair = source_.unitAt(begin) == '\n' && begin >= step && source_.unitAt(begin - step) == '\r';
  return source_.utf8(pair ? begin - step : begin, offset);
}

std::pair<std::size_t, std::size_t> SvgLayout::removal(NodeIndex element) const {
  const std::size_t step = source_.unitSize();
  const std::size_t begin = source_.node(element).begin;
  const std::size_t end = source_.node(element).end;
  std::size_t next = end;
  while (isBlank(source_.unitAt(next))) next += step;
  if (!isBreak(source_.unitAt(next))) return {begin, end};
  // The break is ASCII only, so that its length in units is that of the text.
  return {begin - breakBefore(begin).size() * step, end};
}

std::size_t SvgLayout::contentEnd(NodeIndex element) const {
  const std::size_t end = source_.node(element).closeBegin;
  return end - breakBefore(end).size() * source_.unitSize();
}

NodeIndex SvgLayout::lastChild(NodeIndex element) const {
  NodeIndex last = source_.node(element).firstChild;
  while (last != 0 && source_.node(last).nextSibling != 0) last = source_.node(last).nextSibling;
  return last;
}

NodeIndex SvgLayout::lastEditableChild(NodeIndex element) const {
  NodeIndex last = 0;
  for (NodeIndex at = source_.node(element).firstChild; at != 0; at = source_.node(at).nextSibling) {
    if (source_.node(at).editable) last = at;
  }
  return last;
}

bool SvgLayout::hasLineBreaks() const {
  const NodeIndex first = source_.node(source_.root()).firstChild;
  if (first == 0) return !breakBefore(source_.node(source_.root()).begin).empty();
  return !source_.node(first).editable || !breakBefore(source_.node(first).begin).empty();
}

std::string SvgLayout::indent(NodeIndex element) const {
  const NodeIndex child = lastEditableChild(element);
  if (child == 0) return hasLineBreaks() ? kStep : "";
  const std::string inner = afterBreak(breakBefore(source_.node(child).begin));
  const std::string outer = afterBreak(breakBefore(source_.node(element).begin));
  return inner.compare(0, outer.size(), outer) == 0 ? inner.substr(outer.size()) : std::string();
}

std::string SvgLayout::childBreak(NodeIndex element) const {
  const NodeIndex child = lastEditableChild(element);
  if (child != 0) return breakBefore(source_.node(child).begin);
  const std::string close = closeBreak(element);
  return close.empty() ? close : close + indent(element);
}

std::string SvgLayout::closeBreak(NodeIndex element) const {
  std::string before = breakBefore(source_.node(element).begin);
  if (!before.empty()) return before;
  return hasLineBreaks() && element == source_.root() ? "\n" : "";
}

std::string SvgLayout::endTagName(NodeIndex element) const {
  const auto [begin, end] = source_.rawName(element);
  std::string name = source_.utf8(begin, end);
  constexpr std::string_view kSwitch = "switch";
  if (source_.is(element, kSwitch)) name.replace(name.size() - kSwitch.size(), kSwitch.size(), "g");
  return name;
}

}  // namespace host
