#include "PaintComponents.h"

namespace host {

std::size_t paintComponentCount(AIColorTag kind) {
  switch (kind) {
    case kGrayColor:
      return 1;
    case kThreeColor:
      return 3;
    case kFourColor:
      return 4;
    default:
      return 0;
  }
}

std::optional<PaintComponents> componentsOf(const AIColor& paint) {
  const AIColorUnion& c = paint.c;
  switch (paint.kind) {
    case kGrayColor:
      return PaintComponents{c.g.gray, 0, 0, 0};
    case kThreeColor:
      return PaintComponents{c.rgb.red, c.rgb.green, c.rgb.blue, 0};
    case kFourColor:
      return PaintComponents{c.f.cyan, c.f.magenta, c.f.yellow, c.f.black};
    default:
      return std::nullopt;
  }
}

AIColor paintOf(AIColorTag kind, const PaintComponents& components) {
  AIColor paint{};
  paint.kind = kind;
  if (kind == kGrayColor) paint.c.g = {components[0]};
  if (kind == kThreeColor) paint.c.rgb = {components[0], components[1], components[2]};
  if (kind == kFourColor) paint.c.f = {components[0], components[1], components[2], components[3]};
  return paint;
}

bool isSamePaint(const AIColor& a, const AIColor& b) {
  if (a.kind != b.kind) return false;
  switch (a.kind) {
    case kCustomColor:
      return a.c.c.color == b.c.c.color && a.c.c.tint == b.c.c.tint;
    case kGradient:
    case kPattern:
      return a.c.s.server == b.c.s.server;
    default:
      return componentsOf(a) == componentsOf(b);
  }
}

bool isSameDefinition(const AICustomColor& a, const AICustomColor& b) {
  if (a.kind != b.kind || a.flag != b.flag) return false;
  const auto numbers = [](const AICustomColor& custom) {
    const AICustomColorUnion& c = custom.c;
    if (custom.kind == kCustomFourColor) return PaintComponents{c.f.cyan, c.f.magenta, c.f.yellow, c.f.black};
    if (custom.kind == kCustomThreeColor) return PaintComponents{c.rgb.red, c.rgb.green, c.rgb.blue, 0};
    return PaintComponents{c.lab.l, c.lab.a, c.lab.b, 0};
  };
  return numbers(a) == numbers(b);
}

}  // namespace host
