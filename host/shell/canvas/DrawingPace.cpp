#include "DrawingPace.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace host {
namespace {

constexpr double kUnlike = 1.3;  // times as large

}  // namespace

void DrawingPace::note(double pixels, double milliseconds) {
  if (last_ && std::max(last_->pixels / pixels, pixels / last_->pixels) >= kUnlike) other_ = last_;
  last_ = Sample{pixels, milliseconds};
}

double DrawingPace::pixelsWithin(double milliseconds) const {
  if (!last_) return 0;
  double perPixel = last_->milliseconds / last_->pixels;  // at most
  if (other_ && other_->pixels != last_->pixels) {
    const double growth = (last_->milliseconds - other_->milliseconds) / (last_->pixels - other_->pixels);
    perPixel = std::clamp(growth, 0.0, perPixel);
  }
  if (perPixel <= 0) return std::numeric_limits<double>::infinity();
  return std::max(0.0, last_->pixels + (milliseconds - last_->milliseconds) / perPixel);
}

}  // namespace host
