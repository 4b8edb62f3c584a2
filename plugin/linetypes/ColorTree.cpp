#include "ColorTree.h"

#include <boost/property_tree/ptree.hpp>

#include "AICustomColor.h"
#include "CustomColorTree.h"
#include "PaintTree.h"

namespace Vandrell::Corvane {
namespace {

using boost::property_tree::ptree_error;

constexpr char kInvalidColor[] = "invalid color";

void PutDefinition(LineTypeTree& tree, AICustomColorHandle handle) {
  AICustomColor definition{};
  if (sAICustomColor->GetCustomColor(handle, &definition) != kNoErr) {
    throw ptree_error("can't get custom color");
  }
  CustomColorToTree(tree.put_child("custom", LineTypeTree()), definition);
}

AIColorUnion GetUnion(const LineTypeTree& tree, AIColorTag kind) {
  AIColorUnion c{};
  switch (kind) {
    case kGrayColor:
      c.g.gray = GetComponents(tree, "gray", 1, kInvalidColor)[0];
      return c;
    case kFourColor: {
      const auto [cyan, magenta, yellow, black] = GetComponents(tree, "cmyk", 4, kInvalidColor);
      c.f = {cyan, magenta, yellow, black};
      return c;
    }
    case kThreeColor: {
      const auto [red, green, blue, none] = GetComponents(tree, "rgb", 3, kInvalidColor);
      c.rgb = {red, green, blue};
      return c;
    }
    case kNoneColor:
      return c;
    case kPattern:
    case kCustomColor:
    case kGradient:
      break;
  }
  throw ptree_error(kInvalidColor);
}

}  // namespace

void ColorToTree(LineTypeTree& tree, const AIColor& color) {
  PutInteger(tree, "kind", color.kind);
  const AIColorUnion& c = color.c;
  switch (color.kind) {
    case kGrayColor:
      return PutComponents(tree, "gray", {c.g.gray});
    case kFourColor:
      return PutComponents(tree, "cmyk", {c.f.cyan, c.f.magenta, c.f.yellow, c.f.black});
    case kCustomColor:
      return PutDefinition(tree, c.c.color);
    case kThreeColor:
      return PutComponents(tree, "rgb", {c.rgb.red, c.rgb.green, c.rgb.blue});
    case kNoneColor:
      return;
    case kPattern:
    case kGradient:
      break;
  }
  throw ptree_error("color type not supported");
}

void ColorFromTree(const LineTypeTree& tree, AIColor& color) {
  AIColor read{};
  read.kind = static_cast<AIColorTag>(GetInt32(tree, "kind"));
  read.c = GetUnion(tree, read.kind);
  color = read;
}

}  // namespace Vandrell::Corvane
