#include "DrawingReport.h"

#include <array>
#include <charconv>
#include <map>
#include <nlohmann/json.hpp>

#include "Bounds.h"
#include "Geometry.h"
#include "ProcessingSteps.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

struct KindName {
  AIArtType type;
  const char* key;
  const char* one;
  const char* many;
};

constexpr std::array<KindName, 8> kKinds{
    {{kGroupArt, "group", "group", "groups"},
     {kPathArt, "path", "path", "paths"},
     {kCompoundPathArt, "compound_path", "compound path", "compound paths"},
     {kTextFrameArt, "text", "text", "texts"},
     {kPlacedArt, "linked_image", "linked image", "linked images"},
     {kRasterArt, "embedded_image", "embedded image", "embedded images"},
     {kSymbolArt, "instance", "instance", "instances"},
     {kForeignArt, "other", "other", "others"}}};

using Counts = std::map<AIArtType, std::size_t>;

// Paths inside compound paths belong to these and are not counted apart.
void countArt(const Document& document, ArtId parent, Counts& counts) {
  for (ArtId id = document.art(parent)->firstChild; id != 0; id = document.art(id)->below) {
    const AIArtType type = document.art(id)->type;
    ++counts[type];
    if (type == kGroupArt) countArt(document, id, counts);
  }
}

Counts countLayer(const Document& document, const Layer& layer) {
  Counts counts;
  countArt(document, layer.root, counts);
  return counts;
}

Json countsAsJson(const Counts& counts) {
  Json json = Json::object();
  for (const KindName& kind : kKinds) {
    const auto found = counts.find(kind.type);
    if (found != counts.end()) json[kind.key] = found->second;
  }
  return json;
}

std::string countsAsText(const Counts& counts) {
  std::string text;
  for (const KindName& kind : kKinds) {
    const auto found = counts.find(kind.type);
    if (found == counts.end()) continue;
    if (!text.empty()) text += ", ";
    text += std::to_string(found->second) + " " + (found->second == 1 ? kind.one : kind.many);
  }
  return text.empty() ? "empty" : text;
}

// Two decimals, without what would be zeros.
std::string millimetres(double points) {
  std::array<char, 64> buffer{};
  const double value = points * 25.4 / 72;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 2);
  std::string text(buffer.data(), end.ptr);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

Json rectAsJson(const AIRealRect& rect, double scale) {
  if (isEmpty(rect)) return nullptr;
  return Json{{"left", rect.left * scale},
              {"top", rect.top * scale},
              {"right", rect.right * scale},
              {"bottom", rect.bottom * scale}};
}

const char* swatchKind(const AIColor& color) {
  switch (color.kind) {
    case kGrayColor:
      return "gray";
    case kFourColor:
      return "cmyk";
    case kThreeColor:
      return "rgb";
    case kCustomColor:
      return "custom";
    case kGradient:
      return "gradient";
    case kPattern:
      return "pattern";
    case kNoneColor:
      return "none";
  }
  return "none";
}

std::string groupName(const Document& document, const Swatch& swatch) {
  const SwatchGroup* group = document.swatchGroup(swatch.group);
  return group != nullptr ? group->name : std::string();
}

Json remarksAsJson(const SvgDrawing& drawing) {
  Json remarks = Json::array();
  for (const SvgRemark& remark : drawing.remarks) {
    remarks.push_back({{"element", remark.element},
                       {"id", remark.id},
                       {"reason", remark.reason},
                       {"line", remark.position.line},
                       {"column", remark.position.column}});
  }
  return remarks;
}

Json findingsAsJson(const Document& document, const std::vector<Finding>& findings) {
  Json items = Json::array();
  for (const Finding& finding : findings) {
    Json boxes = Json::array();
    for (const ArtId art : finding.art) {
      boxes.push_back(rectAsJson(artBounds(document, art, nullptr, kNoStrokeBounds), document.scale()));
    }
    items.push_back({{"kind", keyOf(finding.kind)},
                     {"sentence", finding.sentence},
                     {"place", finding.place},
                     {"art", finding.art.size()},
                     {"boxes", std::move(boxes)}});
  }
  return items;
}

std::string findingsAsText(const Document& document, const std::vector<Finding>& findings) {
  const bool isUnchecked = typesWithSteps(document).empty();
  if (findings.empty()) {
    return std::string("Preflight: no findings") + (isUnchecked ? ", as there are no line types" : "") + "\n";
  }
  std::string text = "Preflight, places from the lower left corner of the first artboard:\n";
  for (const Finding& finding : findings) text += "  " + finding.sentence + "\n";
  return text;
}

}  // namespace

std::string remarkLine(const SvgRemark& remark) {
  return "line " + std::to_string(remark.position.line) + ", <" + remark.element + ">" +
         (remark.id.empty() ? "" : " \"" + remark.id + "\"") + ": " + remark.reason;
}

std::string shortNumber(double value) {
  std::array<char, 32> buffer{};
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

std::string reportAsJson(const SvgDrawing& drawing, const std::string& name,
                         const std::vector<Finding>* findings) {
  const Document& document = *drawing.document;
  const double scale = document.scale();
  Json json{{"file", name}, {"scale", scale}};
  for (const Artboard& artboard : document.state().artboards) {
    Json item = rectAsJson(artboard.position, scale);
    item["name"] = artboard.name;
    json["artboards"].push_back(std::move(item));
  }
  Counts total;
  json["layers"] = Json::array();
  for (const LayerId id : document.state().layers) {
    const Layer& layer = *document.layer(id);
    const Counts counts = countLayer(document, layer);
    for (const auto& [type, count] : counts) total[type] += count;
    json["layers"].push_back({{"title", layer.title},
                              {"visible", layer.visible},
                              {"locked", !layer.editable},
                              {"bounds", rectAsJson(artBounds(document, layer.root, nullptr, 0), scale)},
                              {"art", countsAsJson(counts)}});
  }
  json["art"] = countsAsJson(total);
  json["swatches"] = Json::array();
  for (const SwatchId id : document.state().swatches) {
    const Swatch& swatch = *document.swatch(id);
    json["swatches"].push_back(
        {{"name", swatch.name}, {"group", groupName(document, swatch)}, {"kind", swatchKind(swatch.color)}});
  }
  json["not_understood"] = remarksAsJson(drawing);
  if (findings != nullptr) json["findings"] = findingsAsJson(document, *findings);
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string reportAsText(const SvgDrawing& drawing, const std::string& name,
                         const std::vector<Finding>* findings) {
  const Document& document = *drawing.document;
  const double scale = document.scale();
  std::string text = name + "\n";
  text += "Artboards:\n";
  for (const Artboard& artboard : document.state().artboards) {
    const AIRealRect& at = artboard.position;
    text += "  " + (artboard.name.empty() ? std::string("(unnamed)") : artboard.name) + ": " +
            millimetres((at.right - at.left) * scale) + " x " + millimetres((at.top - at.bottom) * scale) +
            " mm\n";
  }
  text += "Layers, from the top:\n";
  for (const LayerId id : document.state().layers) {
    const Layer& layer = *document.layer(id);
    text += "  " + (layer.title.empty() ? std::string("(untitled)") : layer.title) + ": " +
            countsAsText(countLayer(document, layer));
    if (!layer.visible) text += ", hidden";
    if (!layer.editable) text += ", locked";
    text += "\n";
  }
  if (!document.state().swatches.empty()) text += "Swatches:\n";
  for (const SwatchId id : document.state().swatches) {
    const Swatch& swatch = *document.swatch(id);
    const std::string group = groupName(document, swatch);
    text +=
        "  " + swatch.name + " (" + swatchKind(swatch.color) + (group.empty() ? "" : ", in " + group) + ")\n";
  }
  if (!drawing.remarks.empty()) text += "Not understood, or assumed:\n";
  for (const SvgRemark& remark : drawing.remarks) {
    text += "  " + remarkLine(remark) + "\n";
  }
  if (findings != nullptr) text += findingsAsText(document, *findings);
  return text;
}

}  // namespace host
