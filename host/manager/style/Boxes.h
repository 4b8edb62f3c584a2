// Rectangles with round corners, which most controls are made of.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace host::look {

struct Box {
  double radius = 0;
  QColor fill;     // invalid: none
  QColor outline;  // invalid: none
  int outlineWidth = 1;
};

// The outline lies inside of the rectangle, sharp if that has whole coordinates.
void drawBox(QPainter& painter, const QRectF& rect, const Box& box);

}  // namespace host::look
