#include "SvgTagEdit.h"

#include <algorithm>
#include <utility>

#include "SvgStyleText.h"
#include "SvgXmlText.h"

namespace host {

SvgTagEdit::SvgTagEdit(const SvgSource& source, const SvgDeclared& declared, NodeIndex element)
    : source_(source), declared_(declared), element_(element) {}

void SvgTagEdit::set(XmlNamespace nameSpace, std::string_view name, std::string value) {
  const auto known = std::find_if(changes_.begin(), changes_.end(), [&](const Change& change) {
    return change.nameSpace == nameSpace && change.name == name;
  });
  if (known == changes_.end()) {
    changes_.push_back({nameSpace, std::string(name), std::move(value)});
  } else {
    known->value = std::move(value);
  }
}

void SvgTagEdit::remove(XmlNamespace nameSpace, std::string_view name) {
  set(nameSpace, name, {});
  for (Change& change : changes_) {
    if (change.nameSpace == nameSpace && change.name == name) change.value.reset();
  }
}

std::optional<std::string> SvgTagEdit::current(std::string_view name) const {
  for (const Change& change : changes_) {
    if (change.nameSpace == XmlNamespace::None && change.name == name) return change.value;
  }
  const auto value = source_.attribute(element_, name);
  return value ? std::optional<std::string>(*value) : std::nullopt;
}

void SvgTagEdit::setProperty(std::string_view property, std::string value) {
  const std::optional<std::string> style = current("style");
  const bool inStyle = style && styleProperty(*style, property);
  const bool isAttribute = source_.attribute(element_, property).has_value();
  if (inStyle || declared_.sheetSets(property) || (style && !isAttribute)) {
    setInStyle(property, value);
  } else {
    set(property, std::move(value));
  }
}

void SvgTagEdit::setInStyle(std::string_view property, std::string_view value) {
  set("style", withStyleProperty(current("style").value_or(std::string()), property, value));
}

void SvgTagEdit::removeProperty(std::string_view property) {
  if (source_.attribute(element_, property)) remove(property);
  const std::optional<std::string> style = current("style");
  if (!style || !styleProperty(*style, property)) return;
  std::string rest = withoutStyleProperty(*style, property);
  if (rest.empty()) {
    remove("style");
  } else {
    set("style", std::move(rest));
  }
}

void SvgTagEdit::declare(std::string_view prefix, std::string_view uri) {
  appendAttribute(declarations_, prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix), uri);
}

void SvgTagEdit::write(SvgEditPlan& plan, SvgPrefixes& prefixes) {
  if (!localName_.empty()) writeName(plan, prefixes);
  for (const Change& change : changes_) write(change, plan, prefixes);
  if (declarations_.empty()) return;
  const std::size_t place = source_.attributeInsertion(element_);
  plan.replace(place, place, declarations_);
}

void SvgTagEdit::write(const Change& change, SvgEditPlan& plan, SvgPrefixes& prefixes) const {
  const auto there = source_.rawAttribute(element_, change.nameSpace, change.name);
  if (there && change.value) {
    plan.replace(there->begin, there->end, escapedAttribute(*change.value, there->quote));
  } else if (there) {
    plan.replace(there->outerBegin, there->outerEnd, "");
  } else if (change.value) {
    std::string text;
    appendAttribute(text, prefixes.name(element_, change.nameSpace, change.name, kRootScope), *change.value);
    const std::size_t place = source_.attributeInsertion(element_);
    plan.replace(place, place, text);
  }
}

void SvgTagEdit::writeName(SvgEditPlan& plan, const SvgPrefixes& prefixes) const {
  const SvgNode& node = source_.node(element_);
  const std::string name = prefixes.elementName(element_, localName_);
  const auto [begin, end] = source_.rawName(element_);
  plan.replace(begin, end, name);
  if (node.closeBegin == node.end) return;
  const std::size_t step = source_.unitSize();
  const std::size_t closeName = node.closeBegin + 2 * step;
  plan.replace(closeName, closeName + (end - begin), name);
}

}  // namespace host
