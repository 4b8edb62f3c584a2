#include "LineTypes.h"

#include <algorithm>

#include "Handles.h"
#include "Paint.h"

namespace host {
namespace {

CustomColorId spotOf(const Document& document, const AIColor& color) {
  if (color.kind != kCustomColor) return 0;
  const CustomColorId id = idOfHandle(color.c.c.color, HandleKind::CustomColor, document.serial());
  const CustomColor* custom = document.customColor(id);
  return custom != nullptr && (custom->definition.flag & kCustomSpotColor) != 0 ? id : 0;
}

}  // namespace

std::vector<LineType> lineTypesOf(const Document& document) {
  std::vector<LineType> types;
  for (const LayerId id : document.state().layers) {
    const std::string& title = document.layer(id)->title;
    const CustomColorId color = document.customColorByName(title);
    if (color == 0 || (document.customColor(color)->definition.flag & kCustomSpotColor) == 0) continue;
    const bool isKnown =
        std::any_of(types.begin(), types.end(), [&](const LineType& type) { return type.color == color; });
    if (!isKnown) types.push_back({title, color, id});
  }
  return types;
}

CustomColorId spotOf(const Document& document, ArtId art) {
  const AIPathStyle* style = document.styleOf(art);
  if (style == nullptr) return 0;
  const CustomColorId stroke = paintsStroke(*style) ? spotOf(document, style->stroke.color) : 0;
  return stroke != 0 || !paintsFill(*style) ? stroke : spotOf(document, style->fill.color);
}

}  // namespace host
