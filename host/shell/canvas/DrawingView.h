// The picture of a drawing.
#pragma once

#include <QImage>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "SvgPicture.h"
#include "ViewEvents.h"

namespace host {

struct OpenDrawing;
class View;

// Shows what the drawing's View says, on a pasteboard, and takes the user about it with wheel and keys. Until
// somebody moves it all artboards are made to fit as the widget changes its size. The drawing and `events`
// must outlive the widget.
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
  void zoomAround(const QPointF& fixed, double zoom);  // what is there stays there
  void zoomTo(double zoom);                            // around the middle
  void fit(const AIRealRect& rect);                    // document units
  void fitArtboards();                                 // all of them, and again when the size changes

  // Says again where the pointer is, if it is over the view.
  void reportPointer();

 protected:
  void enterEvent(QEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  PointerEvent eventAt(const QPointF& position, Qt::KeyboardModifiers modifiers) const;
  void move(const std::function<void(View&)>& change);
  void load();
  void draw(const QSize& pixels, const PixelRect& place);
  void paintDrawing(QPainter& painter);
  void paintComplaint(QPainter& painter);
  PixelRect placeOfPicture() const;

  OpenDrawing& drawing_;
  ViewEvents& events_;
  bool isFitted_ = true;
  std::uint64_t loadedRevision_ = 0;
  std::optional<SvgPicture> picture_;
  std::string complaint_;  // why there is no picture; a clause
  QImage image_;           // of the whole widget
  PixelRect imagePlace_{};
};

}  // namespace host
