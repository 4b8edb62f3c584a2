#include "CanvasPlace.h"

#include <algorithm>
#include <cmath>

#include "View.h"

namespace host {

CanvasPlace::CanvasPlace(const View& view, const AIRealRect& bounds, const QSize& widget, double ratio_)
    : ratio(ratio_),
      viewportWidth(std::round(widget.width() * ratio)),
      viewportHeight(std::round(widget.height() * ratio)) {
  const AIRealPoint corner = view.toPixels({bounds.left, bounds.top});
  const double scale = view.pixelsPerUnit() * ratio;
  x = std::round(corner.x * ratio);
  y = std::round(corner.y * ratio);
  width = std::max(1.0, std::round((bounds.right - bounds.left) * scale));
  height = std::max(1.0, std::round((bounds.top - bounds.bottom) * scale));
}

PixelRect CanvasPlace::seen(double margin) const {
  const double left = std::max(0.0, -x - margin);
  const double top = std::max(0.0, -y - margin);
  const double right = std::min(width, viewportWidth - x + margin);
  const double bottom = std::min(height, viewportHeight - y + margin);
  return {left, top, std::max(0.0, right - left), std::max(0.0, bottom - top)};
}

QRectF CanvasPlace::inWidget(const PixelRect& part, double wholeWidth, double wholeHeight) const {
  const double perX = width / wholeWidth;
  const double perY = height / wholeHeight;
  return {(x + part.x * perX) / ratio, (y + part.y * perY) / ratio, part.width * perX / ratio,
          part.height * perY / ratio};
}

bool isEmpty(const PixelRect& rect) {
  return rect.width <= 0 || rect.height <= 0;
}

bool contains(const PixelRect& outer, const PixelRect& inner) {
  return outer.x <= inner.x && outer.y <= inner.y && outer.x + outer.width >= inner.x + inner.width &&
         outer.y + outer.height >= inner.y + inner.height;
}

}  // namespace host
