#include "View.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr double kRoomRound = 1.1;  // how much more than the rectangle `show` fits in

}  // namespace

View::View(double pointsPerUnit) : pointsPerUnit_(pointsPerUnit) {}

void View::setZoom(double zoom) {
  zoom_ = std::clamp(zoom, kMinZoom, kMaxZoom);
}

void View::setViewport(int width, int height) {
  width_ = std::max(1, width);
  height_ = std::max(1, height);
}

AIRealRect View::bounds() const {
  const AIRealPoint upperLeft = toDocument({0, 0});
  const AIRealPoint lowerRight = toDocument({static_cast<double>(width_), static_cast<double>(height_)});
  return {upperLeft.x, upperLeft.y, lowerRight.x, lowerRight.y};
}

void View::show(const AIRealRect& rect) {
  const double width = rect.right - rect.left;
  const double height = rect.top - rect.bottom;
  center_ = {rect.left + width / 2, rect.bottom + height / 2};
  const double fit = std::min(width_ / (width * kRoomRound), height_ / (height * kRoomRound));
  if (std::isfinite(fit) && fit > 0) setZoom(fit / pointsPerUnit_);
}

AIRealMatrix View::pixelsFromDocument() const {
  const double scale = pixelsPerUnit();
  return {scale, 0, 0, -scale, width_ / 2.0 - center_.x * scale, height_ / 2.0 + center_.y * scale};
}

AIRealPoint View::toPixels(AIRealPoint document) const {
  const double scale = pixelsPerUnit();
  return {width_ / 2.0 + (document.x - center_.x) * scale, height_ / 2.0 - (document.y - center_.y) * scale};
}

AIRealPoint View::toDocument(AIRealPoint pixels) const {
  const double scale = pixelsPerUnit();
  return {center_.x + (pixels.x - width_ / 2.0) / scale, center_.y - (pixels.y - height_ / 2.0) / scale};
}

void View::moveBy(AIRealPoint pixels) {
  const double scale = pixelsPerUnit();
  center_ = {center_.x + pixels.x / scale, center_.y - pixels.y / scale};
}

void View::zoomAround(AIRealPoint pixels, double zoom) {
  const AIRealPoint fixed = toDocument(pixels);
  setZoom(zoom);
  const AIRealPoint now = toPixels(fixed);
  moveBy({now.x - pixels.x, now.y - pixels.y});
}

}  // namespace host
