// Annotations in the window.
#pragma once

#include <QRectF>

#include "AnnotationCanvas.h"

class QPainter;

namespace host {

// Paints on `painter`, which must outlive it and paints on a view in the view's pixels; nothing outside of
// `visible`.
class PainterCanvas : public AnnotationCanvas {
 public:
  PainterCanvas(QPainter& painter, const QRectF& visible) : painter_(painter), visible_(visible) {}

  void drawRect(const AIRect& pixels, const AnnotationPen& pen, bool fill) override;

 private:
  QPainter& painter_;
  const QRectF visible_;
};

// Any int is a good coordinate.
QRectF toRectF(const AIRect& pixels);

}  // namespace host
