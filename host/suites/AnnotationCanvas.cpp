#include "AnnotationCanvas.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace host {
namespace {

// From one pixel to the one behind another, as far as numbers reach.
void order(std::int32_t& first, std::int32_t& last) {
  if (last < first) std::swap(first, last);
  if (last > first) return;
  if (last == std::numeric_limits<std::int32_t>::max()) --first;
  last = first + 1;
}

}  // namespace

AIRect covering(const AIRect& rect) {
  AIRect ordered = rect;
  order(ordered.left, ordered.right);
  order(ordered.top, ordered.bottom);
  return ordered;
}

}  // namespace host
