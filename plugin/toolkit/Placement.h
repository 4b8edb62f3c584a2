// How items are placed against a rectangle.
#pragma once

#include "ADMRect.h"

namespace qRVADM {

// Any combination. They act in the order of this list; "align" and "center" keep the size that the rectangle
// had before any flag of the axis acted.
enum PlacementFlag : int {
  kStretchLeft = 0x004,
  kStretchRight = 0x008,
  kAlignLeft = 0x001,
  kAlignRight = 0x002,
  kCenterH = 0x010,
  kStretchTop = 0x080,
  kStretchBottom = 0x100,
  kAlignTop = 0x020,
  kAlignBottom = 0x040,
  kCenterV = 0x200,
  kAlignBase = 0x400,  // nothing by itself; alone in a Place call: no alignment
};

constexpr int kDefaultGap = -9999;

// `rect` after the flags have acted on it with `target`.
ADMRect Placed(const ADMRect& rect, const ADMRect& target, int flags);

}  // namespace qRVADM
