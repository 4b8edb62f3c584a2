// What part of a document a window shows, and how large.
#pragma once

#include "AITypes.h"

namespace host {

// View coordinates are pixels, y down, origin at the upper left corner of the viewport.
class View {
 public:
  static constexpr double kMinZoom = 1.0 / 10000;
  static constexpr double kMaxZoom = 640;

  explicit View(double pointsPerUnit = 1.0);

  AIRealPoint center() const { return center_; }  // document units
  void setCenter(AIRealPoint center) { center_ = center; }
  double zoom() const { return zoom_; }  // 1: one pixel a point
  void setZoom(double zoom);             // kept within the limits above
  int width() const { return width_; }   // pixels
  int height() const { return height_; }
  void setViewport(int width, int height);  // the center stays; at least one pixel each way

  AIRealRect bounds() const;          // document units
  void show(const AIRealRect& rect);  // the whole of it, in the middle, with a little room round it

  void moveBy(AIRealPoint pixels);  // what lies so far right and down comes to where one looks
  void zoomAround(AIRealPoint pixels, double zoom);  // what is at these pixels of the viewport stays there

  double pixelsPerUnit() const { return zoom_ * pointsPerUnit_; }
  AIRealMatrix pixelsFromDocument() const;
  AIRealPoint toPixels(AIRealPoint document) const;
  AIRealPoint toDocument(AIRealPoint pixels) const;

 private:
  double pointsPerUnit_;
  double zoom_ = 1.0;
  AIRealPoint center_{0, 0};
  int width_ = 1024;
  int height_ = 768;
};

}  // namespace host
