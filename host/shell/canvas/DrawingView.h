// The picture of a drawing.
#pragma once

#include <QWidget>
#include <chrono>
#include <functional>
#include <optional>

#include "CanvasPicture.h"
#include "ViewEvents.h"
#include "ViewNavigation.h"

namespace host {

struct OpenDrawing;
class View;

// Shows what the drawing's View says, on a pasteboard, and takes the user about it with wheel and keys. Until
// somebody moves it all artboards are made to fit as the widget changes its size. The drawing and `events`
// must outlive the widget.
//
// On the screen the picture gets sharp a little after the drawing was moved or changed; whatever else the
// view is painted on gets the sharp one.
class DrawingView : public QWidget {
 public:
  DrawingView(OpenDrawing& drawing, ViewEvents& events);

  OpenDrawing& drawing() const { return drawing_; }

  // To be called when the drawing, its name or its View may have changed.
  void refresh();
  // What lies over the drawing in this part has changed; in the pixels of the View.
  void repaintLater(const QRectF& part);
  // The way about the drawing, for tools, menus and keys. Pixels are those of the widget.
  void panBy(const QPointF& pixels);                   // the drawing moves the other way
  double zoom() const;                                 // 1: one pixel a point
  void zoomAround(const QPointF& fixed, double zoom);  // what is there stays there
  void zoomTo(double zoom);                            // around the middle
  void fit(const AIRealRect& rect);                    // document units
  void fitArtboards();                                 // all of them, and again when the size changes

  // Says again where the pointer is, if it is over the view.
  void reportPointer();

  bool isSharp() const { return picture_.isSharp(); }
  // False: it is not sharp yet, after so long.
  bool waitUntilSharp(std::chrono::milliseconds longest) { return picture_.waitUntilSharp(longest); }

  // For who stands round the view: it shows another part of the drawing, or the drawing has changed; the
  // pointer is there, or nowhere over the view.
  std::function<void()> onMove;
  std::function<void(const std::optional<QPointF>&)> onPointer;

 protected:
  bool event(QEvent* event) override;
  void enterEvent(QEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  PointerEvent eventAt(const QPointF& position, Qt::KeyboardModifiers modifiers) const;
  void tellPointer(const std::optional<QPointF>& position);
  void move(const std::function<void(View&)>& change);
  void tellMove();
  bool isPaintedOnScreen() const;
  void paintDrawing(QPainter& painter);
  void paintComplaint(QPainter& painter);

  OpenDrawing& drawing_;
  ViewEvents& events_;
  CanvasPicture picture_;
  ViewNavigation navigation_;
  bool isFitted_ = true;
};

}  // namespace host
