// The pictures that a view shows of its drawing.
#pragma once

#include <QTimer>
#include <chrono>
#include <optional>
#include <string>

#include "CanvasPlace.h"
#include "DrawingPace.h"
#include "PictureRenderer.h"

class QPainter;
class QWidget;

namespace host {

struct OpenDrawing;

// Keeps a sharp picture of what is seen and a margin round it, and an overview of all. Until the sharp one is
// there, the last one stands in for it, moved and scaled to its place, and round it the overview.
class CanvasPicture {
 public:
  // `view` is painted anew when there is a better picture. Both must outlive this.
  CanvasPicture(QWidget& view, const OpenDrawing& drawing);

  // Sees to it that what the view is to show now gets drawn, and waits for it a moment if it takes no longer.
  void follow();
  // Nothing better will come for what the view shows now: it is the drawing as it is.
  bool isSharp() const;
  // Waits for that, for so long; false: it is not there yet.
  bool waitUntilSharp(std::chrono::milliseconds longest);

  const std::string& complaint() const { return complaint_; }     // why nothing is shown; a clause
  void paint(QPainter& painter, const CanvasPlace& place) const;  // in pixels of the view
  CanvasPlace place() const;

 private:
  void load();
  void ask();
  void fetch();
  void keep(PictureRenderer::Kind kind, std::optional<DrawnPicture>& kept);
  bool shows(const PictureCut& cut, const PixelRect& part) const;
  PictureCut cutOfAll() const;

  QWidget& view_;
  const OpenDrawing& drawing_;
  PictureRenderer renderer_;
  QTimer overviewTimer_;
  std::uint64_t revision_ = 0;  // that the renderer has
  AIRealRect bounds_{};
  PictureCut asked_;  // the newest request for a sharp one
  std::optional<DrawnPicture> sharp_;
  std::optional<DrawnPicture> overview_;
  DrawingPace pace_;
  std::string complaint_;
  bool isQuick_ = false;  // the next sharp one is worth waiting for
};

}  // namespace host
