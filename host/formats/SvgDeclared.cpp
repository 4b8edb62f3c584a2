#include "SvgDeclared.h"

#include "SvgStyleText.h"

namespace host {

SvgDeclared::SvgDeclared(const SvgSource& source) : source_(source) {
  for (NodeIndex index = source.root(); index <= source.nodeCount(); ++index) {
    if (source.is(index, "style")) sheets_ += source.text(index);
  }
}

std::optional<std::string_view> SvgDeclared::on(NodeIndex element, std::string_view property) const {
  const auto style = source_.attribute(element, "style");
  const auto value = style ? styleProperty(*style, property) : std::nullopt;
  return value ? value : source_.attribute(element, property);
}

std::optional<std::string_view> SvgDeclared::inherited(NodeIndex element, std::string_view property) const {
  for (; element != 0; element = source_.node(element).parent) {
    if (const auto value = on(element, property)) return value;
  }
  return std::nullopt;
}

}  // namespace host
