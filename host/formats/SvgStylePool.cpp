#include "SvgStylePool.h"

#include <algorithm>
#include <array>
#include <functional>

namespace host {
namespace {

constexpr std::size_t kComponents = 5;

// All that a colour says, in numbers; the handles' bits fit the same way as they compare.
std::array<double, kComponents> componentsOf(const AIColor& color) {
  const auto kind = static_cast<double>(color.kind);
  switch (color.kind) {
    case kGrayColor:
      return {kind, color.c.g.gray};
    case kFourColor:
      return {kind, color.c.f.cyan, color.c.f.magenta, color.c.f.yellow, color.c.f.black};
    case kThreeColor:
      return {kind, color.c.rgb.red, color.c.rgb.green, color.c.rgb.blue};
    default:
      return {kind};
  }
}

const void* handleOf(const AIColor& color) {
  if (color.kind == kCustomColor) return color.c.c.color;
  return color.kind == kPattern || color.kind == kGradient ? color.c.s.server : nullptr;
}

bool equal(const AIColor& a, const AIColor& b) {
  if (componentsOf(a) != componentsOf(b) || handleOf(a) != handleOf(b)) return false;
  return a.kind != kCustomColor || a.c.c.tint == b.c.c.tint;
}

bool equal(const AIDashStyle& a, const AIDashStyle& b) {
  return a.length == b.length && a.offset == b.offset &&
         std::equal(std::begin(a.array), std::end(a.array), std::begin(b.array));
}

bool equal(const AIStrokeStyle& a, const AIStrokeStyle& b) {
  return equal(a.color, b.color) && a.overprint == b.overprint && a.width == b.width &&
         equal(a.dash, b.dash) && a.cap == b.cap && a.join == b.join && a.miterLimit == b.miterLimit;
}

template <typename Value>
void mix(std::size_t& hash, const Value& value) {
  hash = hash * 31 + std::hash<Value>()(value);
}

void mixColour(std::size_t& hash, const AIColor& color) {
  for (const double component : componentsOf(color)) mix(hash, component);
  mix(hash, handleOf(color));
}

}  // namespace

std::size_t SvgStylePool::Hash::operator()(const Pointer& style) const {
  std::size_t hash = style->fillPaint + 2U * style->strokePaint + 4U * style->evenodd;
  mixColour(hash, style->fill.color);
  mixColour(hash, style->stroke.color);
  mix(hash, style->stroke.width);
  mix(hash, style->stroke.dash.array[0]);
  return hash;
}

bool SvgStylePool::Equal::operator()(const Pointer& a, const Pointer& b) const {
  return a->fillPaint == b->fillPaint && a->strokePaint == b->strokePaint && a->evenodd == b->evenodd &&
         a->fill.overprint == b->fill.overprint && equal(a->fill.color, b->fill.color) &&
         equal(a->stroke, b->stroke);
}

std::shared_ptr<const AIPathStyle> SvgStylePool::share(const AIPathStyle& style) {
  // A pointer that owns nothing, for looking only.
  const Pointer probe(Pointer(), &style);
  const auto found = styles_.find(probe);
  if (found != styles_.end()) return *found;
  return *styles_.insert(std::make_shared<const AIPathStyle>(style)).first;
}

}  // namespace host
