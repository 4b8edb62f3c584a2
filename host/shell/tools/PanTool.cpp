#include "PanTool.h"

#include "DrawingView.h"
#include "ToolGlyphs.h"

namespace host {

HostTool::Face PanTool::face() const {
  return {"Pan", Qt::Key_H, handGlyph()};
}

QCursor PanTool::cursor(const DrawingView&, Qt::KeyboardModifiers) const {
  return isHeld_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
}

void PanTool::pressed(DrawingView&, const PointerEvent& event) {
  last_ = event.position;
  isHeld_ = true;
}

void PanTool::dragged(DrawingView& view, const PointerEvent& event) {
  view.panBy(last_ - event.position);
  last_ = event.position;
}

void PanTool::released(DrawingView&, const PointerEvent&) {
  isHeld_ = false;
}

}  // namespace host
