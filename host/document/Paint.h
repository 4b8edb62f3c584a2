// What a style really paints.
#pragma once

#include "AIPathStyle.h"

namespace host {

inline bool paintsFill(const AIPathStyle& style) {
  return style.fillPaint != 0 && style.fill.color.kind != kNoneColor;
}

inline bool paintsStroke(const AIPathStyle& style) {
  return style.strokePaint != 0 && style.stroke.color.kind != kNoneColor && style.stroke.width > 0;
}

}  // namespace host
