#include "DrawingView.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "Host.h"
#include "PainterCanvas.h"
#include "ViewEvents.h"
#include "Workspace.h"

namespace host {
namespace {

constexpr QRgb kPasteboard = qRgb(0x8c, 0x8c, 0x8c);
constexpr QRgb kSheetEdge = qRgb(0x5a, 0x5a, 0x5a);

bool operator==(const PixelRect& a, const PixelRect& b) {
  return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

}  // namespace

DrawingView::DrawingView(OpenDrawing& drawing, ViewEvents& events) : drawing_(drawing), events_(events) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(200, 150);
  refresh();
}

void DrawingView::refresh() {
  setAccessibleName("Drawing " + QString::fromStdString(drawing_.shown->title));
  update();
}

void DrawingView::repaintLater(const QRectF& part) {
  update((part & QRectF(rect())).toAlignedRect());
}

void DrawingView::reportPointer() {
  if (underMouse()) events_.pointerMoved(*this, toDocument(mapFromGlobal(QCursor::pos())));
}

AIRealPoint DrawingView::toDocument(const QPointF& position) const {
  return drawing_.shown->view.toDocument({position.x(), position.y()});
}

void DrawingView::enterEvent(QEvent* event) {
  events_.pointerMoved(*this, toDocument(static_cast<QEnterEvent*>(event)->localPos()));
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) events_.pointerPressed(*this, toDocument(event->localPos()));
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
  const AIRealPoint point = toDocument(event->localPos());
  if ((event->buttons() & Qt::LeftButton) != 0) return events_.pointerDragged(*this, point);
  events_.pointerMoved(*this, point);
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) events_.pointerReleased(*this, toDocument(event->localPos()));
}

void DrawingView::resizeEvent(QResizeEvent*) {
  events_.aboutToMove(*this);
  View& view = drawing_.shown->view;
  view.setViewport(width(), height());
  view.show(unionOfArtboards(drawing_.document()));
}

void DrawingView::load() {
  const std::uint64_t revision = drawing_.document().revision();
  if (loadedRevision_ == revision) return;
  loadedRevision_ = revision;
  picture_.reset();
  complaint_.clear();
  image_ = {};
  auto loaded = SvgPicture::load(drawing_.drawing, writeSvg(drawing_.drawing), drawing_.shown->file);
  if (std::string* reason = std::get_if<std::string>(&loaded)) {
    complaint_ = std::move(*reason);
  } else {
    picture_ = std::move(std::get<SvgPicture>(loaded));
  }
}

// In device pixels, between whole ones: the edges of the sheet are sharp.
PixelRect DrawingView::placeOfPicture() const {
  const AIRealRect& bounds = picture_->bounds();
  const View& view = drawing_.shown->view;
  const AIRealPoint from = view.toPixels({bounds.left, bounds.top});
  const AIRealPoint to = view.toPixels({bounds.right, bounds.bottom});
  const double ratio = devicePixelRatioF();
  const double x = std::round(from.x * ratio);
  const double y = std::round(from.y * ratio);
  return {x, y, std::round(to.x * ratio) - x, std::round(to.y * ratio) - y};
}

void DrawingView::draw(const QSize& pixels, const PixelRect& place) {
  if (image_.size() == pixels && imagePlace_ == place) return;
  image_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
  imagePlace_ = place;
  image_.fill(kPasteboard);
  complaint_ = picture_->draw({image_.bits(), image_.width(), image_.height(), image_.bytesPerLine()}, place);
  image_.setDevicePixelRatio(devicePixelRatioF());
}

void DrawingView::paintEvent(QPaintEvent*) {
  load();
  QPainter painter(this);
  paintDrawing(painter);
  paintComplaint(painter);
  PainterCanvas canvas(painter, rect());
  events_.paintOver(*this, canvas);
}

void DrawingView::paintDrawing(QPainter& painter) {
  if (!picture_) return painter.fillRect(rect(), QColor(kPasteboard));
  const double ratio = devicePixelRatioF();
  const PixelRect place = placeOfPicture();
  draw((QSizeF(size()) * ratio).toSize(), place);
  painter.drawImage(0, 0, image_);
  painter.setPen(QPen(QColor(kSheetEdge), 0));
  painter.drawRect(QRectF(place.x / ratio, place.y / ratio, place.width / ratio, place.height / ratio)
                       .adjusted(-0.5 / ratio, -0.5 / ratio, 0.5 / ratio, 0.5 / ratio));
}

void DrawingView::paintComplaint(QPainter& painter) {
  if (complaint_.empty()) return;
  painter.setPen(Qt::white);
  painter.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap,
                   "This drawing cannot be shown: " + QString::fromStdString(complaint_));
}

}  // namespace host
