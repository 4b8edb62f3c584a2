// Zooms by clicks, out with Alt, and to what a frame holds.
#pragma once

#include "HostTool.h"
#include "Marquee.h"

namespace host {

class ZoomTool : public HostTool {
 public:
  Face face() const override;
  QCursor cursor(const DrawingView& view, Qt::KeyboardModifiers modifiers) const override;
  void pressed(DrawingView& view, const PointerEvent& event) override;
  void dragged(DrawingView& view, const PointerEvent& event) override;
  void released(DrawingView& view, const PointerEvent& event) override;
  bool keyPressed(DrawingView& view, const QKeyEvent& event) override;
  void paint(const DrawingView& view, QPainter& painter) const override;

 private:
  // Made for one ratio of device pixels to pixels.
  struct Cursors {
    double ratio = 0;
    QCursor in, out;
  };

  Marquee frame_;
  mutable Cursors cursors_;
};

}  // namespace host
