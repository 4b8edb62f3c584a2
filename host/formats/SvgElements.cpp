#include "SvgElements.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "SvgScanner.h"

namespace host {
namespace {

struct Entry {
  std::string_view name;
  SvgElementKind kind;
};

// In alphabetical order.
constexpr Entry kKinds[] = {{"a", SvgElementKind::Group},
                            {"animate", SvgElementKind::None},
                            {"animateColor", SvgElementKind::None},
                            {"animateMotion", SvgElementKind::None},
                            {"animateTransform", SvgElementKind::None},
                            {"circle", SvgElementKind::Shape},
                            {"clipPath", SvgElementKind::None},
                            {"color-profile", SvgElementKind::None},
                            {"cursor", SvgElementKind::None},
                            {"defs", SvgElementKind::None},
                            {"desc", SvgElementKind::None},
                            {"ellipse", SvgElementKind::Shape},
                            {"filter", SvgElementKind::None},
                            {"font", SvgElementKind::None},
                            {"font-face", SvgElementKind::None},
                            {"g", SvgElementKind::Group},
                            {"hatch", SvgElementKind::None},
                            {"image", SvgElementKind::Image},
                            {"line", SvgElementKind::Shape},
                            {"linearGradient", SvgElementKind::None},
                            {"marker", SvgElementKind::None},
                            {"mask", SvgElementKind::None},
                            {"meshgradient", SvgElementKind::None},
                            {"metadata", SvgElementKind::None},
                            {"path", SvgElementKind::Shape},
                            {"pattern", SvgElementKind::None},
                            {"polygon", SvgElementKind::Shape},
                            {"polyline", SvgElementKind::Shape},
                            {"radialGradient", SvgElementKind::None},
                            {"rect", SvgElementKind::Shape},
                            {"script", SvgElementKind::None},
                            {"set", SvgElementKind::None},
                            {"solidColor", SvgElementKind::None},
                            {"solidcolor", SvgElementKind::None},
                            {"style", SvgElementKind::None},
                            {"svg", SvgElementKind::Nested},
                            {"switch", SvgElementKind::Switch},
                            {"symbol", SvgElementKind::None},
                            {"text", SvgElementKind::Text},
                            {"title", SvgElementKind::None},
                            {"use", SvgElementKind::Use},
                            {"view", SvgElementKind::None}};

constexpr std::string_view kLanguage = "en";

bool isLanguage(std::string_view tag) {
  const bool exact =
      tag.size() == kLanguage.size() || (tag.size() > kLanguage.size() && tag[kLanguage.size()] == '-');
  return exact && equalsIgnoringCase(tag.substr(0, kLanguage.size()), kLanguage);
}

}  // namespace

SvgElementKind kindOf(const SvgSource& source, NodeIndex element) {
  if (!source.isSvg(element)) return SvgElementKind::None;
  const std::string_view name = source.node(element).name;
  const auto* found =
      std::lower_bound(std::begin(kKinds), std::end(kKinds), name,
                       [](const Entry& entry, std::string_view wanted) { return entry.name < wanted; });
  const bool known = found != std::end(kKinds) && found->name == name;
  return known ? found->kind : SvgElementKind::Foreign;
}

bool passesConditions(const SvgSource& source, NodeIndex element) {
  const auto extensions = source.attribute(element, "requiredExtensions");
  if (extensions && !withoutBlanksAround(*extensions).empty()) return false;
  const auto languages = source.attribute(element, "systemLanguage");
  if (!languages) return true;
  SvgScanner scanner(*languages);
  do {
    if (isLanguage(withoutBlanksAround(scanner.until(",")))) return true;
  } while (scanner.take(','));
  return false;
}

NodeIndex chosenChild(const SvgSource& source, NodeIndex element) {
  NodeIndex child = source.node(element).firstChild;
  while (child != 0 && (kindOf(source, child) == SvgElementKind::None || !passesConditions(source, child))) {
    child = source.node(child).nextSibling;
  }
  return child;
}

}  // namespace host
