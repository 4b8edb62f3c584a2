// The frame that a drag opens.
#pragma once

#include <QRectF>
#include <optional>

#include "ViewEvents.h"

namespace host {

// A press begins it; once the pointer has moved a little it is a frame, and until then a click. It stays
// where it is in the drawing when the view moves.
class Marquee {
 public:
  void begin(const PointerEvent& event);
  void follow(DrawingView& view, const PointerEvent& event);
  void end(DrawingView& view);  // and nothing is left of it

  bool isOpen() const { return from_.has_value(); }
  bool isFrame() const { return isFrame_; }
  AIRealRect area() const;  // document units

  void paint(const DrawingView& view, QPainter& painter) const;

 private:
  QRectF pixels(const DrawingView& view) const;
  void repaint(DrawingView& view) const;

  std::optional<PointerEvent> from_;
  AIRealPoint to_{};
  bool isFrame_ = false;
};

}  // namespace host
