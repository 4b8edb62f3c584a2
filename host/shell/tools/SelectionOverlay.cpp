#include "SelectionOverlay.h"

#include <QPainter>
#include <cmath>
#include <utility>

#include "DrawingView.h"
#include "Geometry.h"
#include "Host.h"
#include "OpenDrawing.h"
#include "SelectionColor.h"

namespace host {
namespace {

constexpr double kCorner = 5;                  // side of the squares, in pixels
constexpr std::size_t kPointsPainted = 20000;  // that are painted each time
constexpr int kRest = 100;                     // milliseconds

QTransform placeOf(const View& view) {
  const AIRealMatrix m = view.pixelsFromDocument();
  return {m.a, m.b, m.c, m.d, m.tx, m.ty};
}

void paintCorners(const View& view, const AIRealRect& extent, QPainter& painter) {
  painter.setPen(QPen(QColor(kSelectionColor), 0));
  painter.setBrush(Qt::white);
  for (const double x : {extent.left, extent.right}) {
    for (const double y : {extent.bottom, extent.top}) {
      const AIRealPoint at = view.toPixels({x, y});
      const QPointF corner(std::floor(at.x - kCorner / 2) + 0.5, std::floor(at.y - kCorner / 2) + 0.5);
      painter.drawRect(QRectF(corner, QSizeF(kCorner, kCorner)));
    }
  }
}

}  // namespace

SelectionOverlay::SelectionOverlay() {
  rest_.setSingleShot(true);
  QObject::connect(&rest_, &QTimer::timeout, &rest_, [this] {
    if (moving_) moving_->update();
  });
}

void SelectionOverlay::paint(DrawingView& view, const AIRealRect& extent, QPainter& painter) {
  const Document& document = view.drawing().document();
  if (document.selectedCount() == 0) return;
  const View& shown = view.drawing().shown->view;
  if (!outlines_.areOf(document)) {
    outlines_.make(document, shown.pixelsPerUnit());
    picture_ = {};
  }
  if (outlines_.pointCount() > kPointsPainted) {
    paintMany(view, placeOf(shown), painter);
  } else {
    if (!outlines_.areFineFor(shown.pixelsPerUnit())) outlines_.make(document, shown.pixelsPerUnit());
    outlines_.paint(painter, placeOf(shown), view.rect());
  }
  if (!isEmpty(extent)) paintCorners(shown, extent, painter);
}

void SelectionOverlay::paintMany(DrawingView& view, const QTransform& pixelsFromDocument, QPainter& painter) {
  const bool hasMoved = std::exchange(lastPlace_, pixelsFromDocument) != pixelsFromDocument;
  if (picture_.size() != view.size() * view.devicePixelRatioF()) picture_ = {};
  if (!picture_.isNull() && hasMoved) {
    moving_ = &view;
    rest_.start(kRest);
  }
  if (picture_.isNull() || (picturePlace_ != pixelsFromDocument && !rest_.isActive())) {
    makePicture(view, pixelsFromDocument);
  }
  painter.save();
  painter.setTransform(picturePlace_.inverted() * pixelsFromDocument, true);
  painter.drawImage(0, 0, picture_);
  painter.restore();
}

void SelectionOverlay::makePicture(const DrawingView& view, const QTransform& pixelsFromDocument) {
  const View& shown = view.drawing().shown->view;
  if (!outlines_.areFineFor(shown.pixelsPerUnit())) {
    outlines_.make(view.drawing().document(), shown.pixelsPerUnit());
  }
  picture_ = QImage(view.size() * view.devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
  picture_.setDevicePixelRatio(view.devicePixelRatioF());
  picture_.fill(Qt::transparent);
  picturePlace_ = pixelsFromDocument;
  QPainter painter(&picture_);
  outlines_.paint(painter, pixelsFromDocument, view.rect());
}

}  // namespace host
