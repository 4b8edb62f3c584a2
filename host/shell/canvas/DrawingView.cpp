#include "DrawingView.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "Host.h"
#include "OpenDrawing.h"
#include "ViewEvents.h"

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
  if (!underMouse()) return;
  events_.pointerMoved(*this,
                       eventAt(mapFromGlobal(QCursor::pos()), QGuiApplication::queryKeyboardModifiers()));
}

PointerEvent DrawingView::eventAt(const QPointF& position, Qt::KeyboardModifiers modifiers) const {
  return {drawing_.shown->view.toDocument({position.x(), position.y()}), position, modifiers};
}

void DrawingView::enterEvent(QEvent* event) {
  events_.pointerMoved(*this, eventAt(static_cast<QEnterEvent*>(event)->localPos(), {}));
}

void DrawingView::leaveEvent(QEvent*) {
  events_.pointerLeft(*this);
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  events_.pointerPressed(*this, eventAt(event->localPos(), event->modifiers()));
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
  const PointerEvent at = eventAt(event->localPos(), event->modifiers());
  if ((event->buttons() & Qt::LeftButton) != 0) return events_.pointerDragged(*this, at);
  events_.pointerMoved(*this, at);
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  events_.pointerReleased(*this, eventAt(event->localPos(), event->modifiers()));
}

void DrawingView::keyPressEvent(QKeyEvent* event) {
  event->ignore();
  events_.keyPressed(*this, *event);
}

void DrawingView::resizeEvent(QResizeEvent*) {
  events_.aboutToMove(*this);
  View& view = drawing_.shown->view;
  view.setViewport(width(), height());
  if (isFitted_) view.show(unionOfArtboards(drawing_.document()));
  update();
  events_.moved(*this);
}

void DrawingView::move(const std::function<void(View&)>& change) {
  events_.aboutToMove(*this);
  isFitted_ = false;
  change(drawing_.shown->view);
  update();
  events_.moved(*this);
}

void DrawingView::panBy(const QPointF& pixels) {
  move([&](View& view) { view.moveBy({pixels.x(), pixels.y()}); });
}

void DrawingView::zoomAround(const QPointF& fixed, double zoom) {
  move([&](View& view) { view.zoomAround({fixed.x(), fixed.y()}, zoom); });
}

void DrawingView::zoomTo(double zoom) {
  zoomAround({width() / 2.0, height() / 2.0}, zoom);
}

void DrawingView::fit(const AIRealRect& rect) {
  move([&](View& view) { view.show(rect); });
}

void DrawingView::fitArtboards() {
  fit(unionOfArtboards(drawing_.document()));
  isFitted_ = true;
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
  events_.paintOver(*this, painter);
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
