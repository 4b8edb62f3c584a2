// Selects art by clicks and frames.
#pragma once

#include <functional>
#include <vector>

#include "Art.h"
#include "HostTool.h"
#include "Marquee.h"

namespace host {

class Document;

// A click selects the outermost group about what lies under the pointer, with Alt the very object; a frame
// selects what it touches. Shift adds to the selection, and a click with it takes away what is selected. What
// is locked or hidden is looked through.
class SelectTool : public HostTool {
 public:
  // `done` is called after the user may have changed the selection.
  explicit SelectTool(std::function<void()> done) : done_(std::move(done)) {}

  Face face() const override;
  QCursor cursor(const DrawingView& view, Qt::KeyboardModifiers modifiers) const override;
  void pressed(DrawingView& view, const PointerEvent& event) override;
  void dragged(DrawingView& view, const PointerEvent& event) override;
  void released(DrawingView& view, const PointerEvent& event) override;
  bool keyPressed(DrawingView& view, const QKeyEvent& event) override;
  void paint(const DrawingView& view, QPainter& painter) const override;

 private:
  void click(DrawingView& view, const PointerEvent& event);
  void selectFramed(Document& document, Qt::KeyboardModifiers modifiers);

  std::function<void()> done_;
  Marquee frame_;
};

}  // namespace host
