#include "Placement.h"

namespace qRVADM {
namespace {

// One axis of a rectangle.
struct Span {
  int start, end;
};

struct AxisFlags {
  int stretchStart, stretchEnd, alignStart, alignEnd, center;
};

constexpr AxisFlags kHorizontal{kStretchLeft, kStretchRight, kAlignLeft, kAlignRight, kCenterH};
constexpr AxisFlags kVertical{kStretchTop, kStretchBottom, kAlignTop, kAlignBottom, kCenterV};

Span PlacedSpan(Span span, const Span& target, int flags, const AxisFlags& axis) {
  const int size = span.end - span.start;
  if (flags & axis.stretchStart) span.start = target.start;
  if (flags & axis.stretchEnd) span.end = target.end;
  if (flags & axis.alignStart) span = {target.start, target.start + size};
  if (flags & axis.alignEnd) span = {target.end - size, target.end};
  if (flags & axis.center) {
    const int start = (target.start - size + target.end) / 2;
    span = {start, start + size};
  }
  return span;
}

}  // namespace

ADMRect Placed(const ADMRect& rect, const ADMRect& target, int flags) {
  const Span across = PlacedSpan({rect.left, rect.right}, {target.left, target.right}, flags, kHorizontal);
  const Span down = PlacedSpan({rect.top, rect.bottom}, {target.top, target.bottom}, flags, kVertical);
  return {across.start, down.start, across.end, down.end};
}

}  // namespace qRVADM
