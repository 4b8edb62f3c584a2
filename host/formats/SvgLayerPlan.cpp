#include "SvgLayerPlan.h"

#include <algorithm>
#include <charconv>

#include "SvgElements.h"
#include "SvgHostText.h"
#include "Utf8Characters.h"

namespace host {
namespace {

constexpr char kStrayTitle[] = "Layer 1";
constexpr std::size_t kMostEscapeDigits = 6;

// What kind of layer a top-level element could be.
enum class Candidate { Declared, Added, Named, Stray };

std::string_view labelOf(const SvgSource& source, NodeIndex element) {
  return source.attribute(element, XmlNamespace::Inkscape, "label").value_or("");
}

// Does it say so?
bool hasNoTitle(const SvgSource& source, NodeIndex element) {
  return source.attribute(element, XmlNamespace::Host, kHostTitle) == "";
}

std::string titleOf(const SvgSource& source, NodeIndex element) {
  for (const std::string_view name :
       {labelOf(source, element), source.attribute(element, "data-name").value_or("")}) {
    if (!name.empty()) return std::string(name);
  }
  return decodedId(source.attribute(element, "id").value_or(""));
}

Candidate candidateOf(const SvgSource& source, NodeIndex element) {
  if (!source.is(element, "g")) return Candidate::Stray;
  if (source.attribute(element, XmlNamespace::Host, kHostAdded) == "layer") return Candidate::Added;
  if (source.attribute(element, XmlNamespace::Inkscape, "groupmode") == "layer") return Candidate::Declared;
  const bool isNamed = hasNoTitle(source, element) || !titleOf(source, element).empty();
  return isNamed ? Candidate::Named : Candidate::Stray;
}

// Programs leave empty groups behind, which are no content.
bool isDrawn(const SvgSource& source, NodeIndex element) {
  if (kindOf(source, element) == SvgElementKind::None) return false;
  const SvgNode& node = source.node(element);
  return node.firstChild != 0 || node.attributeCount != 0 || node.name != "g";
}

struct Entry {
  NodeIndex element;
  Candidate candidate;
};

std::vector<Entry> topLevelContent(const SvgSource& source) {
  std::vector<Entry> content;
  const NodeIndex first = source.node(source.root()).firstChild;
  for (NodeIndex child = first; child != 0; child = source.node(child).nextSibling) {
    if (isDrawn(source, child)) content.push_back({child, candidateOf(source, child)});
  }
  return content;
}

bool anyIs(const std::vector<Entry>& content, Candidate candidate) {
  return std::any_of(content.begin(), content.end(),
                     [=](const Entry& entry) { return entry.candidate == candidate; });
}

bool isOfTheFile(const Entry& entry) {
  return entry.candidate != Candidate::Added;
}

std::string layerTitle(const SvgSource& source, const Entry& entry) {
  if (hasNoTitle(source, entry.element)) return {};
  if (entry.candidate == Candidate::Added) return std::string(labelOf(source, entry.element));
  return titleOf(source, entry.element);
}

bool isHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

}  // namespace

std::vector<SvgLayerPlan> planLayers(const SvgSource& source) {
  const std::vector<Entry> content = topLevelContent(source);
  const bool hasOwn = anyIs(content, Candidate::Declared);
  const bool named = !hasOwn && !anyIs(content, Candidate::Stray);
  std::vector<SvgLayerPlan> plan;
  std::size_t stray = content.size();  // index of the layer of what lies in no other
  for (const Entry& entry : content) {
    const bool isLayer = entry.candidate == Candidate::Declared || entry.candidate == Candidate::Added ||
                         (named && entry.candidate == Candidate::Named);
    if (isLayer) {
      plan.push_back({layerTitle(source, entry), entry.element, {}});
      continue;
    }
    if (stray == content.size()) {
      stray = plan.size();
      plan.push_back({kStrayTitle, source.root(), {}});
    }
    plan[stray].stray.push_back(entry.element);
  }
  // A drawing that was empty before this host added layers to it still has the layer it had then.
  if (std::none_of(content.begin(), content.end(), isOfTheFile)) {
    plan.insert(plan.begin(), {kStrayTitle, source.root(), {}});
  }
  return plan;
}

std::string decodedId(std::string_view id) {
  std::string text;
  for (std::size_t at = 0; at < id.size();) {
    std::size_t end = at + 2;
    while (end < id.size() && isHexDigit(id[end])) ++end;
    const bool escape = id.substr(at, 2) == "_x" && end - at >= 4 && end - at <= 2 + kMostEscapeDigits &&
                        end < id.size() && id[end] == '_';
    char32_t character = 0;
    std::uint32_t code = 0;
    if (escape) std::from_chars(id.data() + at + 2, id.data() + end, code, 16);
    character = code;
    const bool isScalar = code > 0x1F && code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
    if (escape && isScalar) {
      appendUtf8(text, character);
      at = end + 1;
    } else {
      text += id[at++];
    }
  }
  return text;
}

}  // namespace host
