#include "PdfSpotNames.h"

#include <map>

#include "SvgHostText.h"

namespace host {
namespace {

// ISO 32000-1, 8.6.6.4.
const char* meaningOf(std::string_view name) {
  if (name == "All") return "all inks at once";
  return name == "None" ? "no ink at all" : nullptr;
}

}  // namespace

std::string plateOf(const CustomColor& color) {
  if ((color.definition.flag & kCustomRegistrationColor) != 0) return "All";
  return (color.definition.flag & kCustomSpotColor) != 0 ? color.name : std::string();
}

std::string troubleWithSpotNames(const SvgDrawing& drawing) {
  const SvgSource& source = *drawing.source;
  std::map<std::string_view, std::string_view> definitions;
  const NodeIndex swatches = swatchesNode(source);
  for (NodeIndex at = swatches == 0 ? 0 : source.node(swatches).firstChild; at != 0;
       at = source.node(at).nextSibling) {
    const bool isSpot = source.node(at).name == "color" && source.attribute(at, "spot") == "true";
    if (!isSpot || source.attribute(at, "registration") == "true") continue;
    const std::string_view name = source.attribute(at, "name").value_or(std::string_view());
    const std::string_view definition = source.attribute(at, "definition").value_or(std::string_view());
    if (const char* meaning = meaningOf(name)) {
      return "a spot colour cannot be named \"" + std::string(name) + "\", which in a PDF means " + meaning;
    }
    const std::string_view first = definitions.emplace(name, definition).first->second;
    if (first != definition) {
      return "the spot colour \"" + std::string(name) + "\" is defined both as " + std::string(first) +
             " and as " + std::string(definition);
    }
  }
  return {};
}

}  // namespace host
