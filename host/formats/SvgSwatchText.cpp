#include <algorithm>
#include <charconv>
#include <set>

#include "Handles.h"
#include "SvgHostText.h"
#include "SvgXmlText.h"

namespace host {
namespace {

std::string colourText(std::string_view prefix, const CustomColor& color) {
  std::string tag = "<" + std::string(prefix) + ":color";
  appendAttribute(tag, "name", color.name);
  appendAttribute(tag, "definition", definitionText(color.definition));
  if (color.definition.flag & kCustomSpotColor) appendAttribute(tag, "spot", "true");
  if (color.definition.flag & kCustomRegistrationColor) appendAttribute(tag, "registration", "true");
  return tag + "/>";
}

std::string groupText(std::string_view prefix, const SwatchGroup& group) {
  std::string tag = "<" + std::string(prefix) + ":group";
  appendAttribute(tag, "name", group.name);
  appendAttribute(tag, "kind", std::to_string(group.kind));
  return tag + "/>";
}

std::string swatchText(std::string_view prefix, const Swatch& swatch, const Document& document) {
  std::string tag = "<" + std::string(prefix) + ":swatch";
  appendAttribute(tag, "name", swatch.name);
  appendAttribute(tag, "paint", paintText(swatch.color, document));
  const auto& groups = document.state().swatchGroups;
  const auto group = std::find(groups.begin(), groups.end(), swatch.group);
  if (group != groups.end()) appendAttribute(tag, "group", std::to_string(group - groups.begin() + 1));
  return tag + "/>";
}

// The custom colours that swatches and art paint with, in order of their ids. Others are out of reach.
class UsedCustomColours {
 public:
  explicit UsedCustomColours(const Document& document) : document_(document) {
    for (const SwatchId id : document.state().swatches) {
      if (const Swatch* swatch = document.swatch(id)) note(swatch->color);
    }
    for (ArtId id = 1; id <= document.artSlots(); ++id) {
      if (const Art* art = document.art(id)) note(*art);
    }
  }
  const std::set<CustomColorId>& ids() const { return ids_; }

 private:
  void note(const Art& art) {
    if (art.style) note(*art.style);
    if (!art.body) return;
    for (const Body::Part& part : art.body->parts) note(part.style);
  }
  void note(const AIPathStyle& style) {
    note(style.fill.color);
    note(style.stroke.color);
  }
  void note(const AIColor& color) {
    if (color.kind != kCustomColor || !customColorOf(color, document_)) return;
    ids_.insert(idOfHandle(color.c.c.color, HandleKind::CustomColor, document_.serial()));
  }

  const Document& document_;
  std::set<CustomColorId> ids_;
};

std::vector<std::string> entries(const Document& document, std::string_view prefix) {
  std::vector<std::string> lines;
  const UsedCustomColours used(document);
  for (const CustomColorId id : used.ids()) {
    lines.push_back(colourText(prefix, *document.customColor(id)));
  }
  for (const SwatchGroupId id : document.state().swatchGroups) {
    if (const SwatchGroup* group = document.swatchGroup(id)) lines.push_back(groupText(prefix, *group));
  }
  for (const SwatchId id : document.state().swatches) {
    if (const Swatch* swatch = document.swatch(id)) lines.push_back(swatchText(prefix, *swatch, document));
  }
  return lines;
}

}  // namespace

std::string swatchesText(const Document& document, std::string_view prefix, std::string_view lineBreak,
                         std::string_view indent) {
  const std::vector<std::string> lines = entries(document, prefix);
  if (lines.empty()) return {};
  const std::string name = std::string(prefix) + ":swatches";
  std::string text = "<" + name + ">";
  for (const std::string& line : lines) text.append(lineBreak).append(indent).append(line);
  return text.append(lineBreak).append("</" + name + ">");
}

NodeIndex swatchesNode(const SvgSource& source) {
  for (NodeIndex at = source.node(source.root()).firstChild; at != 0; at = source.node(at).nextSibling) {
    if (!source.is(at, "metadata")) continue;
    for (NodeIndex in = source.node(at).firstChild; in != 0; in = source.node(in).nextSibling) {
      if (source.node(in).nameSpace == XmlNamespace::Host && source.node(in).name == "swatches") return in;
    }
  }
  return 0;
}

namespace {

class SwatchReader {
 public:
  SwatchReader(const SvgSource& source, Document& document) : source_(source), document_(document) {}

  bool read(NodeIndex node) {
    const std::string_view kind = source_.node(node).name;
    if (source_.node(node).nameSpace != XmlNamespace::Host) return false;
    if (kind == "color") return readColour(node);
    if (kind == "group") return readGroup(node);
    return kind == "swatch" && readSwatch(node);
  }

 private:
  std::string text(NodeIndex node, std::string_view name) const {
    return std::string(source_.attribute(node, name).value_or(std::string_view()));
  }

  std::int32_t integer(NodeIndex node, std::string_view name) const {
    const std::string digits = text(node, name);
    std::int32_t value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
  }

  bool readColour(NodeIndex node) {
    auto definition = definitionFrom(text(node, "definition"));
    std::string name = text(node, "name");
    if (!definition || name.empty() || document_.customColorByName(name) != 0) return false;
    const int spot = text(node, "spot") == "true" ? kCustomSpotColor : 0;
    const int registration = text(node, "registration") == "true" ? kCustomRegistrationColor : 0;
    definition->flag = static_cast<AICustomColorFlags>(spot | registration);
    document_.addCustomColor(std::move(name), *definition);
    return true;
  }

  bool readGroup(NodeIndex node) {
    const SwatchGroupId id = document_.addSwatchGroup(-1);
    SwatchGroup& group = document_.editSwatchGroup(id);
    group.name = text(node, "name");
    group.kind = integer(node, "kind");
    return true;
  }

  bool readSwatch(NodeIndex node) {
    const auto paint = paintFrom(text(node, "paint"), document_);
    if (!paint) return false;
    const auto& groups = document_.state().swatchGroups;
    const auto place = static_cast<std::size_t>(integer(node, "group"));
    const SwatchGroupId group = place >= 1 && place <= groups.size() ? groups[place - 1] : 0;
    document_.addSwatch(group, *paint, text(node, "name"));
    return true;
  }

  const SvgSource& source_;
  Document& document_;
};

}  // namespace

std::vector<NodeIndex> readSwatches(const SvgSource& source, Document& document) {
  std::vector<NodeIndex> misunderstood;
  const NodeIndex block = swatchesNode(source);
  if (block == 0) return misunderstood;
  SwatchReader reader(source, document);
  for (NodeIndex at = source.node(block).firstChild; at != 0; at = source.node(at).nextSibling) {
    if (!reader.read(at)) misunderstood.push_back(at);
  }
  return misunderstood;
}

}  // namespace host
