#include "SvgCascade.h"

#include <cstdint>
#include <string>

#include "SvgFont.h"
#include "SvgScanner.h"
#include "SvgStyleComputer.h"

namespace host {
namespace {

// What a declaration weighs by where it stands; rules of style sheets add less than a step.
constexpr std::uint64_t kAttributeWeight = 0;
constexpr std::uint64_t kRuleWeight = 0;
constexpr std::uint64_t kInlineWeight = std::uint64_t{1} << 60;
constexpr std::uint64_t kImportantRuleWeight = std::uint64_t{2} << 60;
constexpr std::uint64_t kImportantInlineWeight = std::uint64_t{3} << 60;

void declareStyleAttribute(std::string_view text, SvgDeclaredValues& values) {
  SvgDeclarationReader reader(text);
  while (const auto declaration = reader.next()) {
    values.declare(declaration->property, declaration->value,
                   declaration->important ? kImportantInlineWeight : kInlineWeight);
  }
}

bool isInherit(std::string_view value) {
  return equalsIgnoringCase(value, "inherit") || equalsIgnoringCase(value, "unset");
}

}  // namespace

SvgCascade::SvgCascade(const SvgSource& source, SvgRemarks& remarks) : source_(source), remarks_(remarks) {
  for (NodeIndex node = 1; node <= source.nodeCount(); ++node) {
    if (!source.is(node, "style")) continue;
    const std::string_view type = source.attribute(node, "type").value_or("text/css");
    if (!type.empty() && !equalsIgnoringCase(type, "text/css")) {
      remarks.add(node, "its type " + quoted(type) + " is not followed");
      continue;
    }
    for (std::string& leftOut : sheet_.add(source.text(node))) remarks.add(node, std::move(leftOut));
  }
}

SvgDeclaredValues SvgCascade::declaredFor(NodeIndex element) const {
  SvgDeclaredValues values;
  std::string_view styleAttribute;
  const XmlAttribute* end = source_.attributesEnd(element);
  for (const XmlAttribute* attribute = source_.attributesBegin(element); attribute != end; ++attribute) {
    if (attribute->nameSpace != XmlNamespace::None) continue;
    if (attribute->name == "style") styleAttribute = attribute->value;
    const auto property = propertyNamed(attribute->name);
    if (!property || !isPresentationAttribute(*property)) continue;
    values.declare(*property, withoutBlanksAround(attribute->value), kAttributeWeight);
  }
  if (!sheet_.empty()) sheet_.declareFor(source_, element, kRuleWeight, kImportantRuleWeight, values);
  declareStyleAttribute(styleAttribute, values);
  return values;
}

SvgStyle SvgCascade::styleOf(NodeIndex element, const SvgDeclaredValues& declared, const SvgStyle& parent,
                             const SvgMeasure& viewport) const {
  SvgStyle style = inheritedStyle(parent);
  SvgStyleComputer computer(style, parent, viewport);
  const auto set = [&](SvgProperty property) {
    const std::string_view value = declared[property];
    if (value.empty() || isInherit(value) || computer.set(property, value)) return;
    remarks_.add(element,
                 "its " + std::string(nameOf(property)) + " " + quoted(value) + " is not understood");
  };
  set(SvgProperty::FontSize);
  for (std::size_t i = 0; i < kSvgPropertyCount; ++i) {
    const auto property = static_cast<SvgProperty>(i);
    if (property != SvgProperty::FontSize) set(property);
  }
  const auto space = source_.attribute(element, XmlNamespace::Xml, "space");
  if (space) style.keepsBlanks = *space == "preserve";
  if (style.dashCount > style.dashes.size() && !declared[SvgProperty::StrokeDasharray].empty()) {
    remarks_.add(element, "its dash pattern has " + std::to_string(style.dashCount) +
                              " entries, of which the first " + std::to_string(style.dashes.size()) +
                              " count");
  }
  if (!declared[SvgProperty::Transform].empty()) {
    remarks_.add(element, "its transform in CSS is not followed, only one in an attribute is");
  }
  return style;
}

}  // namespace host
