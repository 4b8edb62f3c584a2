#include "Marquee.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "DrawingView.h"
#include "Host.h"
#include "OpenDrawing.h"
#include "SelectionColor.h"

namespace host {
namespace {

constexpr int kInsideAlpha = 30;

}  // namespace

void Marquee::begin(const PointerEvent& event) {
  from_ = event;
  to_ = event.point;
  isFrame_ = false;
}

void Marquee::follow(DrawingView& view, const PointerEvent& event) {
  if (!from_) return;
  const QPointF way = event.position - from_->position;
  isFrame_ = isFrame_ || way.manhattanLength() >= QApplication::startDragDistance() / 2.0;
  repaint(view);
  to_ = event.point;
  repaint(view);
}

void Marquee::end(DrawingView& view) {
  repaint(view);
  from_.reset();
  isFrame_ = false;
}

AIRealRect Marquee::area() const {
  const AIRealPoint from = from_->point;
  return {std::min(from.x, to_.x), std::max(from.y, to_.y), std::max(from.x, to_.x), std::min(from.y, to_.y)};
}

QRectF Marquee::pixels(const DrawingView& view) const {
  const View& shown = view.drawing().shown->view;
  const AIRealPoint from = shown.toPixels(from_->point);
  const AIRealPoint to = shown.toPixels(to_);
  return QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)).normalized();
}

void Marquee::repaint(DrawingView& view) const {
  if (isFrame_) view.repaintLater(pixels(view).adjusted(-2, -2, 2, 2));
}

void Marquee::paint(const DrawingView& view, QPainter& painter) const {
  if (!isFrame_) return;
  QColor inside = kSelectionColor;
  inside.setAlpha(kInsideAlpha);
  painter.setPen(QPen(QColor(kSelectionColor), 0));
  painter.setBrush(inside);
  painter.drawRect(pixels(view));
}

}  // namespace host
