#include "HitOutlines.h"

#include <cmath>

#include "Cubic.h"
#include "Geometry.h"
#include "Vector.h"

namespace host {

namespace {

// Steps in one direction, of a box of this size.
class Steps {
 public:
  Steps(double origin, double size, bool narrow)
      : origin_(origin),
        stepLength_(narrow ? HitVertex::kNarrowStep : 1),
        most_(HitVertex::kMost / stepLength_),
        stepsPerUnit_(size > 0 ? most_ / size : 0) {}

  std::uint32_t operator()(double coordinate) const {
    const double steps = (coordinate - origin_) * stepsPerUnit_ + 0.5;
    return (steps < most_ ? static_cast<std::uint32_t>(steps) : most_) * stepLength_;
  }

 private:
  double origin_;
  std::uint32_t stepLength_, most_;
  double stepsPerUnit_;
};

}  // namespace

// Half the diagonal between two vertices is what rounding may add.
HitOutlines::HitOutlines(double tolerance)
    : tolerance_(tolerance - HitVertex::kNarrow * HitVertex::kNarrowStep / HitVertex::kMost * 0.75) {}

std::uint32_t HitOutlines::addRing(std::vector<std::uint32_t>* curveEnds) {
  if (points_.back() != points_.front()) points_.push_back(points_.front());
  AIRealRect bounds = kEmptyRect;
  double length = 0;
  AIRealPoint last = points_.front();
  for (const AIRealPoint point : points_) {
    include(bounds, point);
    length += std::abs(point.x - last.x) + std::abs(point.y - last.y);
    last = point;
  }
  HitOutline outline{HitBox(bounds), static_cast<std::uint32_t>(vertices_.size()), 0, length};
  const Steps across(outline.box.left, outline.box.width(), outline.isNarrow());
  const Steps up(outline.box.bottom, outline.box.height(), outline.isNarrow());
  auto curveEnd = curveEnds != nullptr ? curveEnds->begin() : std::vector<std::uint32_t>::iterator();
  for (std::uint32_t i = 0; i < points_.size(); ++i) {
    const HitVertex vertex{across(points_[i].x), up(points_[i].y)};
    const bool repeated = i > 0 && vertex.x == vertices_.back().x && vertex.y == vertices_.back().y;
    if (!repeated) vertices_.push_back(vertex);
    outline.vertexCount = static_cast<std::uint32_t>(vertices_.size()) - outline.firstVertex;
    if (curveEnds == nullptr) continue;
    for (; curveEnd != curveEnds->end() && *curveEnd == i; ++curveEnd) *curveEnd = outline.vertexCount - 1;
  }
  outlines_.push_back(outline);
  return static_cast<std::uint32_t>(outlines_.size() - 1);
}

std::uint32_t HitOutlines::add(const PathGeometry& path, std::vector<std::uint32_t>* curveEnds) {
  points_.clear();
  points_.push_back(path.segments.empty() ? AIRealPoint{0, 0} : path.segments.front().p);
  for (std::size_t i = 0; i < curveCount(path); ++i) {
    const Cubic curve = curveAt(path, i);
    if (isPoint(curve)) continue;
    appendCurve(curve, curveSteps(curve, tolerance_), points_);
    if (curveEnds != nullptr) curveEnds->push_back(static_cast<std::uint32_t>(points_.size() - 1));
  }
  return addRing(curveEnds);
}

std::uint32_t HitOutlines::addBox(const AIRealRect& box) {
  points_ = {{box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}, {box.left, box.top}};
  return addRing(nullptr);
}

}  // namespace host
