#include "PainterCanvas.h"

#include <QPainter>
#include <algorithm>

namespace host {

void PainterCanvas::drawRect(const AIRect& pixels, const AnnotationPen& pen, bool fill) {
  const QColor color = QColor::fromRgba64(pen.color.red, pen.color.green, pen.color.blue);
  const auto bar = [&](const QRectF& rect) { painter_.fillRect(rect & visible_, color); };
  const QRectF rect = toRectF(pixels);
  const double line = pen.lineWidth;
  if (fill || std::min(rect.width(), rect.height()) <= 2 * line) return bar(rect);
  bar({rect.left(), rect.top(), rect.width(), line});
  bar({rect.left(), rect.bottom() - line, rect.width(), line});
  bar({rect.left(), rect.top() + line, line, rect.height() - 2 * line});
  bar({rect.right() - line, rect.top() + line, line, rect.height() - 2 * line});
}

QRectF toRectF(const AIRect& pixels) {
  const QPointF from(pixels.left, pixels.top);
  const QPointF to(pixels.right, pixels.bottom);
  return {from, to};
}

}  // namespace host
