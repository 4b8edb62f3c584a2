#include "LineTypeToTree.h"

#include <boost/property_tree/ptree.hpp>
#include <stdexcept>

#include "AICustomColor.h"
#include "ColorTree.h"
#include "CustomColorTree.h"

namespace Vandrell::Corvane {
namespace {

// No file can refer to a colour of the document.
LineType WithDefinition(LineType type) {
  if (type.isCustomDataModel || type.color.kind != kCustomColor) return type;
  AICustomColor definition{};
  if (sAICustomColor->GetCustomColor(type.color.c.c.color, &definition) != kNoErr) {
    throw std::runtime_error("runtime error!");
  }
  type.isCustomDataModel = true;
  type.customColor = definition;
  return type;
}

}  // namespace

void LineTypeToTree(LineTypeTree& tree, const LineType& lineType) {
  const LineType type = WithDefinition(lineType);
  tree.put("name", type.name.as_UTF8());
  tree.put("isCustomDataModel", type.isCustomDataModel ? "true" : "false");
  if (type.isCustomDataModel) {
    CustomColorToTree(tree.put_child("customColor", LineTypeTree()), type.customColor);
  } else {
    ColorToTree(tree.put_child("color", LineTypeTree()), type.color);
  }
}

}  // namespace Vandrell::Corvane
