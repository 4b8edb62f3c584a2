#include "ParseLineType.h"

#include <boost/property_tree/ptree.hpp>
#include <exception>

#include "ColorTree.h"
#include "CustomColorTree.h"
#include "JSONText.h"

namespace Vandrell::Corvane {
namespace {

LineType LineTypeFromTree(const LineTypeTree& tree) {
  LineType type;
  type.name = ai::UnicodeString(tree.get<std::string>("name"));
  type.isCustomDataModel = tree.get<bool>("isCustomDataModel");
  if (type.isCustomDataModel) {
    CustomColorFromTree(tree.get_child("customColor"), type.customColor);
  } else {
    ColorFromTree(tree.get_child("color"), type.color);
  }
  return type;
}

}  // namespace

std::optional<LineType> ParseLineType(const std::string& text) {
  try {
    LineType type = LineTypeFromTree(TreeFromJSON(text));
    if (!type.name.empty()) return type;
  } catch (const std::exception&) {  // whatever it is, it is no line type
  }
  return std::nullopt;
}

}  // namespace Vandrell::Corvane
