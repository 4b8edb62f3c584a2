// Moves the drawing about by drags.
#pragma once

#include <QPointF>

#include "HostTool.h"

namespace host {

class PanTool : public HostTool {
 public:
  Face face() const override;
  QCursor cursor(const DrawingView& view, Qt::KeyboardModifiers modifiers) const override;
  void pressed(DrawingView& view, const PointerEvent& event) override;
  void dragged(DrawingView& view, const PointerEvent& event) override;
  void released(DrawingView& view, const PointerEvent& event) override;

 private:
  QPointF last_;  // where the pointer was, in pixels of the view
  bool isHeld_ = false;
};

}  // namespace host
