// The few shapes that controls are made of, in logical pixels and sharp at any resolution.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace host::look {

class PainterState {
 public:
  explicit PainterState(QPainter& painter) : painter_(painter) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
  }
  PainterState(const PainterState&) = delete;
  PainterState& operator=(const PainterState&) = delete;
  ~PainterState() { painter_.restore(); }

 private:
  QPainter& painter_;
};

void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& fill);
// The outline lies inside of the rectangle.
void outlineRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& outline,
                    int width = 1);
void framed(QPainter& painter, const QRectF& rect, double radius, const QColor& fill, const QColor& outline,
            int outlineWidth = 1);

// `size` is the length of the chevron across the way it points.
void chevron(QPainter& painter, const QRectF& centredIn, Qt::ArrowType way, double size,
             const QColor& colour);
void checkMark(QPainter& painter, const QRectF& box, const QColor& colour);
void dash(QPainter& painter, const QRectF& box, const QColor& colour);
void crossMark(QPainter& painter, const QRectF& box, const QColor& colour);

}  // namespace host::look
