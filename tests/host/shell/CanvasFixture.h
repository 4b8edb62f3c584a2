// A drawing that is open in a frame of its own.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "CanvasFrame.h"
#include "Documents.h"
#include "DrawingView.h"
#include "OffscreenApplication.h"
#include "OpenDrawing.h"
#include "ViewEvents.h"

namespace host {

// Notes what views report.
class NotedEvents : public ViewEvents {
 public:
  void pointerMoved(DrawingView&, const PointerEvent& event) override { note("moved", event); }
  void pointerLeft(DrawingView&) override { note("left"); }
  void pointerPressed(DrawingView&, const PointerEvent& event) override { note("pressed", event); }
  void pointerDragged(DrawingView&, const PointerEvent& event) override { note("dragged", event); }
  void pointerReleased(DrawingView&, const PointerEvent& event) override { note("released", event); }
  void keyPressed(DrawingView&, QKeyEvent&) override { note("key"); }
  void paintOver(DrawingView&, QPainter&) override { ++paints; }
  void aboutToMove(DrawingView&) override {}
  void moved(DrawingView&) override {}

  std::string take() { return std::exchange(text_, {}); }
  std::optional<PointerEvent> last;
  int paints = 0;

 private:
  void note(const char* what) { text_ += (text_.empty() ? "" : " ") + std::string(what); }
  void note(const char* what, const PointerEvent& event) {
    last = event;
    note(what);
  }

  std::string text_;
};

class OpenCanvas {
 public:
  // Shown, its view of this size.
  explicit OpenCanvas(const std::string& svg, const QSize& size = {400, 300}) {
    ensureApplication();
    auto read = readSvg(svg, nullptr);
    drawing.drawing = std::move(std::get<SvgDrawing>(read));
    drawing.shown = &documents.open(drawing.drawing.document, "drawing");
    frame.emplace(drawing, events, [this](AIRulerUnits units) { chosen.push_back(units); });
    frame->showRulers(false);
    frame->resize(size);
    frame->show();
  }

  DrawingView& view() { return frame->view(); }
  const View& place() const { return drawing.shown->view; }

  NotedEvents events;
  Documents documents;
  OpenDrawing drawing{};
  std::vector<AIRulerUnits> chosen;
  std::optional<CanvasFrame> frame;
};

}  // namespace host
