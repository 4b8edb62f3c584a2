// The picture of a drawing.
#pragma once

#include <QImage>
#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>

#include "SvgPicture.h"

namespace host {

class ViewEvents;
struct OpenDrawing;

// Shows what the drawing's View says, on a pasteboard; as the widget changes its size, all artboards are made
// to fit. The drawing and `events` must outlive the widget.
class DrawingView : public QWidget {
 public:
  DrawingView(OpenDrawing& drawing, ViewEvents& events);

  OpenDrawing& drawing() const { return drawing_; }

  // To be called when the drawing, its name or its View may have changed.
  void refresh();
  // What lies over the drawing in this part has changed; in the pixels of the View.
  void repaintLater(const QRectF& part);
  // Says again where the pointer is, if it is over the view.
  void reportPointer();

 protected:
  void enterEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  AIRealPoint toDocument(const QPointF& position) const;
  void load();
  void draw(const QSize& pixels, const PixelRect& place);
  void paintDrawing(QPainter& painter);
  void paintComplaint(QPainter& painter);
  PixelRect placeOfPicture() const;

  OpenDrawing& drawing_;
  ViewEvents& events_;
  std::uint64_t loadedRevision_ = 0;
  std::optional<SvgPicture> picture_;
  std::string complaint_;  // why there is no picture; a clause
  QImage image_;           // of the whole widget
  PixelRect imagePlace_{};
};

}  // namespace host
