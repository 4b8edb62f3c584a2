#include "ZoomTool.h"

#include <QKeyEvent>

#include "DrawingView.h"
#include "ToolGlyphs.h"

namespace host {
namespace {

constexpr double kFactor = 2;  // of a click

}  // namespace

HostTool::Face ZoomTool::face() const {
  return {"Zoom", Qt::Key_Z, magnifierGlyph()};
}

QCursor ZoomTool::cursor(const DrawingView& view, Qt::KeyboardModifiers modifiers) const {
  const double ratio = view.devicePixelRatioF();
  if (cursors_.ratio != ratio) {
    cursors_ = {ratio, glyphCursor(magnifierInGlyph(), kLensMiddle, ratio),
                glyphCursor(magnifierOutGlyph(), kLensMiddle, ratio)};
  }
  return modifiers.testFlag(Qt::AltModifier) ? cursors_.out : cursors_.in;
}

void ZoomTool::pressed(DrawingView&, const PointerEvent& event) {
  frame_.begin(event);
}

void ZoomTool::dragged(DrawingView& view, const PointerEvent& event) {
  frame_.follow(view, event);
}

void ZoomTool::released(DrawingView& view, const PointerEvent& event) {
  if (!frame_.isOpen()) return;
  frame_.follow(view, event);
  const bool isFrame = frame_.isFrame();
  const AIRealRect area = frame_.area();
  frame_.end(view);
  if (isFrame) return view.fit(area);
  const double zoom = view.zoom();
  const bool out = event.modifiers.testFlag(Qt::AltModifier);
  view.zoomAround(event.position, out ? zoom / kFactor : zoom * kFactor);
}

bool ZoomTool::keyPressed(DrawingView& view, const QKeyEvent& event) {
  if (event.key() != Qt::Key_Escape || !frame_.isOpen()) return false;
  frame_.end(view);
  return true;
}

void ZoomTool::paint(const DrawingView& view, QPainter& painter) const {
  frame_.paint(view, painter);
}

}  // namespace host
