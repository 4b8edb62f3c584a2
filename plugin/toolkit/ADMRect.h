// Points and rectangles of dialogs: pixels, x right, y down.
#pragma once

#include <QPoint>
#include <QRect>

namespace qRVADM {

struct ADMPoint {
  int x, y;
};

// `right` and `bottom` lie one past the last pixel, so right - left is the width.
struct ADMRect {
  int left, top, right, bottom;
};

inline int Width(const ADMRect& rect) {
  return rect.right - rect.left;
}
inline int Height(const ADMRect& rect) {
  return rect.bottom - rect.top;
}

inline ADMRect ToADMRect(const QRect& rect) {
  return {rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1};
}
inline QRect ToQRect(const ADMRect& rect) {
  return {QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1)};
}

}  // namespace qRVADM
