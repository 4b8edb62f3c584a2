#include "CustomColorTree.h"

#include <boost/property_tree/exceptions.hpp>

#include "PaintTree.h"

namespace Vandrell::Corvane {
namespace {

using boost::property_tree::ptree_error;

std::array<AIReal, kMaxComponents> GetValues(const LineTypeTree& tree, const char* key, std::size_t count) {
  return GetComponents(tree, key, count, "invalid color values");
}

AICustomColorUnion GetUnion(const LineTypeTree& tree, AICustomColorTag kind) {
  AICustomColorUnion c{};
  switch (kind) {
    case kCustomFourColor: {
      const auto [cyan, magenta, yellow, black] = GetValues(tree, "cmyk", 4);
      c.f = {cyan, magenta, yellow, black};
      return c;
    }
    case kCustomThreeColor: {
      const auto [red, green, blue, none] = GetValues(tree, "rgb", 3);
      c.rgb = {red, green, blue};
      return c;
    }
    case kCustomLabColor: {
      const auto [l, a, b, none] = GetValues(tree, "lab", 3);
      c.lab = {l, a, b};
      return c;
    }
  }
  throw ptree_error("invalid color kind");
}

}  // namespace

void CustomColorToTree(LineTypeTree& tree, const AICustomColor& customColor) {
  PutInteger(tree, "kind", customColor.kind);
  PutInteger(tree, "flag", customColor.flag);
  const AICustomColorUnion& c = customColor.c;
  switch (customColor.kind) {
    case kCustomFourColor:
      return PutComponents(tree, "cmyk", {c.f.cyan, c.f.magenta, c.f.yellow, c.f.black});
    case kCustomThreeColor:
      return PutComponents(tree, "rgb", {c.rgb.red, c.rgb.green, c.rgb.blue});
    case kCustomLabColor:
      return PutComponents(tree, "lab", {c.lab.l, c.lab.a, c.lab.b});
  }
  throw ptree_error("invalid color mode");
}

void CustomColorFromTree(const LineTypeTree& tree, AICustomColor& customColor) {
  AICustomColor read{};
  read.kind = static_cast<AICustomColorTag>(GetInt32(tree, "kind"));
  read.flag = GetInt16(tree, "flag");
  read.c = GetUnion(tree, read.kind);
  customColor = read;
}

}  // namespace Vandrell::Corvane
