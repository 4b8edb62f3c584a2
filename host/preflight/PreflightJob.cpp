#include "PreflightJob.h"

#include <algorithm>

#include "DecimalText.h"
#include "Geometry.h"
#include "ProcessingSteps.h"

namespace host {
namespace {

constexpr double kFarthestTold = 1e9;  // millimetres

std::string numberText(double value, int decimals) {
  const double told = value > -kFarthestTold ? std::min(value, kFarthestTold) : -kFarthestTold;
  return decimalText(told, decimals, false);
}

std::vector<PreflightJob::Type> findTypes(const Document& document, LayerId markLayer) {
  const auto steps = stepsOf(document);
  std::vector<PreflightJob::Type> types;
  for (LineType& type : lineTypesOf(document)) {
    if (type.layer == markLayer) continue;
    const auto step = steps.find(type.name);
    types.push_back({std::move(type), step == steps.end() ? std::string() : step->second, {}});
  }
  return types;
}

}  // namespace

PreflightJob::PreflightJob(const Document& from)
    : document(from),
      drawn(from),
      markLayer(markLayerOf(from)),
      marks(marksOf(from)),
      types(findTypes(from, markLayer)) {
  for (auto object = drawn.objects.rbegin(); object != drawn.objects.rend(); ++object) {
    const std::size_t type = object->isBody ? kNone : typeOf(object->art);
    if (type != kNone) types[type].lines.push_back({object->art, object->firstPath, object->endPath});
  }
}

std::size_t PreflightJob::typeOf(ArtId art) const {
  const CustomColorId color = spotOf(document, art);
  const auto found =
      std::find_if(types.begin(), types.end(), [&](const Type& type) { return type.is.color == color; });
  return color == 0 || found == types.end() ? kNone : static_cast<std::size_t>(found - types.begin());
}

std::size_t PreflightJob::typeOf(const AIColor& color) const {
  if (color.kind != kCustomColor) return kNone;
  const CustomColorId id = idOfHandle(color.c.c.color, HandleKind::CustomColor, document.serial());
  const auto found =
      std::find_if(types.begin(), types.end(), [&](const Type& type) { return type.is.color == id; });
  return found == types.end() ? kNone : static_cast<std::size_t>(found - types.begin());
}

std::size_t PreflightJob::sheetAt(AIRealPoint point) const {
  const auto& sheets = document.state().artboards;
  const auto found = std::find_if(sheets.begin(), sheets.end(),
                                  [&](const Artboard& sheet) { return contains(sheet.position, point); });
  return found == sheets.end() ? kNone : static_cast<std::size_t>(found - sheets.begin());
}

std::string PreflightJob::at(AIRealPoint point) const {
  return "at (" + numberText(millimetresOf(point.x), 1) + ", " + numberText(millimetresOf(point.y), 1) +
         ") mm";
}

std::string PreflightJob::length(double units) const {
  const double millimetres = millimetresOf(units);
  return numberText(millimetres, millimetres < 10 ? 2 : 1) + " mm";
}

std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace host
