#include "SvgPrefixes.h"

#include <algorithm>

#include "SvgXmlText.h"

namespace host {
namespace {

std::string usualPrefix(XmlNamespace nameSpace) {
  switch (nameSpace) {
    case XmlNamespace::Inkscape:
      return "inkscape";
    case XmlNamespace::Sodipodi:
      return "sodipodi";
    default:
      return "ch";
  }
}

std::string joined(const std::string& prefix, std::string_view localName) {
  return prefix.empty() ? std::string(localName) : prefix + ":" + std::string(localName);
}

}  // namespace

SvgScope SvgPrefixes::newScope() {
  needed_.emplace_back();
  return needed_.size() - 1;
}

std::string SvgPrefixes::name(NodeIndex inside, XmlNamespace nameSpace, std::string_view localName,
                              SvgScope scope) {
  if (nameSpace == XmlNamespace::None) return std::string(localName);
  if (const auto bound = source_.prefixFor(inside, nameSpace, true)) return joined(*bound, localName);
  needed_[scope].insert(nameSpace);
  return joined(prefixOf(nameSpace), localName);
}

std::string SvgPrefixes::elementName(NodeIndex inside, std::string_view localName) const {
  return joined(source_.prefixFor(inside, XmlNamespace::Svg).value_or(std::string()), localName);
}

// One that no element of the file binds to anything else.
std::string SvgPrefixes::prefixOf(XmlNamespace nameSpace) {
  std::string& prefix = chosen_[nameSpace];
  if (!prefix.empty()) return prefix;
  prefix = usualPrefix(nameSpace);
  for (int number = 1; source_.bindsElsewise(prefix, nameSpace); ++number) {
    prefix = usualPrefix(nameSpace) + std::to_string(number);
  }
  return prefix;
}

bool SvgPrefixes::isDeclaredByRoot(XmlNamespace nameSpace) const {
  const auto needs = [nameSpace](const auto& scope) { return scope.count(nameSpace) > 0; };
  return needs(needed_[kRootScope]) || std::count_if(needed_.begin(), needed_.end(), needs) > 1;
}

std::string SvgPrefixes::declarations(SvgScope scope) const {
  std::string text;
  for (const auto& [nameSpace, prefix] : chosen_) {
    const bool byRoot = isDeclaredByRoot(nameSpace);
    const bool here = scope == kRootScope ? byRoot : !byRoot && needed_[scope].count(nameSpace) > 0;
    if (here) appendAttribute(text, "xmlns:" + prefix, namespaceUri(nameSpace));
  }
  return text;
}

}  // namespace host
