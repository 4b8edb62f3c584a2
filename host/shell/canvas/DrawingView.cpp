#include "DrawingView.h"

#include <QBackingStore>
#include <QGestureEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include "Host.h"
#include "OpenDrawing.h"
#include "SheetPainter.h"
#include "ViewEvents.h"

namespace host {
namespace {

constexpr std::chrono::seconds kLongestWait{30};  // of whoever wants a picture of the view

}  // namespace

DrawingView::DrawingView(OpenDrawing& drawing, ViewEvents& events)
    : drawing_(drawing), events_(events), picture_(*this, drawing), navigation_(*this) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  grabGesture(Qt::PinchGesture);
  setMinimumSize(200, 150);
  refresh();
}

void DrawingView::refresh() {
  setAccessibleName("Drawing " + QString::fromStdString(drawing_.shown->title));
  update();
  if (onMove) onMove();
}

void DrawingView::repaintLater(const QRectF& part) {
  update((part & QRectF(rect())).toAlignedRect());
}

// --- the pointer and the keys ---

void DrawingView::reportPointer() {
  if (!underMouse() || navigation_.isHand()) return;
  events_.pointerMoved(*this,
                       eventAt(mapFromGlobal(QCursor::pos()), QGuiApplication::queryKeyboardModifiers()));
}

PointerEvent DrawingView::eventAt(const QPointF& position, Qt::KeyboardModifiers modifiers) const {
  return {drawing_.shown->view.toDocument({position.x(), position.y()}), position, modifiers};
}

void DrawingView::tellPointer(const std::optional<QPointF>& position) {
  if (onPointer) onPointer(position);
}

bool DrawingView::event(QEvent* event) {
  if (event->type() != QEvent::Gesture) return QWidget::event(event);
  navigation_.pinch(*static_cast<QGestureEvent*>(event));
  return true;
}

void DrawingView::enterEvent(QEvent* event) {
  const QPointF position = static_cast<QEnterEvent*>(event)->localPos();
  tellPointer(position);
  if (!navigation_.isHand()) events_.pointerMoved(*this, eventAt(position, {}));
}

void DrawingView::leaveEvent(QEvent*) {
  tellPointer(std::nullopt);
  events_.pointerLeft(*this);
}

void DrawingView::focusOutEvent(QFocusEvent*) {
  navigation_.letGo();
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
  if (navigation_.press(*event) || event->button() != Qt::LeftButton) return;
  events_.pointerPressed(*this, eventAt(event->localPos(), event->modifiers()));
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
  tellPointer(event->localPos());
  if (navigation_.move(*event)) return;
  const PointerEvent at = eventAt(event->localPos(), event->modifiers());
  if ((event->buttons() & Qt::LeftButton) != 0) return events_.pointerDragged(*this, at);
  events_.pointerMoved(*this, at);
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
  if (navigation_.release(*event) || event->button() != Qt::LeftButton) return;
  events_.pointerReleased(*this, eventAt(event->localPos(), event->modifiers()));
}

void DrawingView::wheelEvent(QWheelEvent* event) {
  navigation_.wheel(*event);
  if (event->buttons() != Qt::NoButton || navigation_.isHand()) return;
  events_.pointerMoved(*this, eventAt(event->position(), event->modifiers()));  // over another place
}

void DrawingView::keyPressEvent(QKeyEvent* event) {
  if (navigation_.keyPress(*event)) return;
  event->ignore();
  events_.keyPressed(*this, *event);
}

void DrawingView::keyReleaseEvent(QKeyEvent* event) {
  bool tapped = false;
  if (!navigation_.keyRelease(*event, tapped)) return event->ignore();
  if (!tapped) return;
  QKeyEvent press(QEvent::KeyPress, event->key(), event->modifiers(), event->text());
  press.ignore();
  events_.keyPressed(*this, press);
}

// --- the way about ---

void DrawingView::resizeEvent(QResizeEvent*) {
  events_.aboutToMove(*this);
  View& view = drawing_.shown->view;
  view.setViewport(width(), height());
  if (isFitted_) view.show(unionOfArtboards(drawing_.document()));
  tellMove();
}

void DrawingView::move(const std::function<void(View&)>& change) {
  events_.aboutToMove(*this);
  isFitted_ = false;
  change(drawing_.shown->view);
  tellMove();
}

void DrawingView::tellMove() {
  update();
  events_.moved(*this);
  if (onMove) onMove();
}

void DrawingView::panBy(const QPointF& pixels) {
  move([&](View& view) { view.moveBy({pixels.x(), pixels.y()}); });
}

double DrawingView::zoom() const {
  return drawing_.shown->view.zoom();
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

// --- the picture ---

// Else the view is asked for a picture of itself, by which it should be known.
bool DrawingView::isPaintedOnScreen() const {
  QPoint offset;
  QBackingStore* store = backingStore();
  return store != nullptr && redirected(&offset) == store->paintDevice();
}

void DrawingView::paintEvent(QPaintEvent*) {
  if (isPaintedOnScreen()) {
    picture_.follow();
  } else {
    picture_.waitUntilSharp(kLongestWait);
  }
  QPainter painter(this);
  if (picture_.complaint().empty()) {
    paintDrawing(painter);
  } else {
    paintComplaint(painter);
  }
  events_.paintOver(*this, painter);
}

void DrawingView::paintDrawing(QPainter& painter) {
  const CanvasPlace place = picture_.place();
  const std::vector<Sheet> sheets = sheetsAt(place, drawing_.document());
  paintSheets(painter, rect(), sheets, palette());
  picture_.paint(painter, place);
  paintSheetEdges(painter, rect(), sheets, palette());
}

void DrawingView::paintComplaint(QPainter& painter) {
  painter.fillRect(rect(), pasteboardColour(palette()));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap,
                   "This drawing cannot be shown: " + QString::fromStdString(picture_.complaint()));
}

}  // namespace host
