#include "HitShapes.h"

#include <algorithm>

#include "Geometry.h"

namespace host {

namespace {

// From the `share` least of the lower edges to the `share` greatest of the upper ones, and half as much again
// on both sides; or all, if that isn't much more. Strays then don't spoil the cells where the crowd is.
void leaveOutStrays(std::vector<double>& lows, std::vector<double>& highs, double& low, double& high) {
  const auto few = static_cast<std::ptrdiff_t>(lows.size() / 64);
  std::nth_element(lows.begin(), lows.begin() + few, lows.end());
  std::nth_element(highs.begin(), highs.end() - 1 - few, highs.end());
  const double from = lows[static_cast<std::size_t>(few)];
  const double to = highs[highs.size() - 1 - static_cast<std::size_t>(few)];
  const double size = to - from;
  if (!(high - low > 4 * size)) return;
  low = std::max(low, from - size / 2);
  high = std::min(high, to + size / 2);
}

AIRealRect mainRegionOf(const std::vector<AIRealRect>& boxes, const AIRealRect& bounds) {
  if (boxes.size() < 64) return bounds;
  AIRealRect region = bounds;
  std::vector<double> lows(boxes.size());
  std::vector<double> highs(boxes.size());
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    lows[i] = boxes[i].left;
    highs[i] = boxes[i].right;
  }
  leaveOutStrays(lows, highs, region.left, region.right);
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    lows[i] = boxes[i].bottom;
    highs[i] = boxes[i].top;
  }
  leaveOutStrays(lows, highs, region.bottom, region.top);
  return region;
}

}  // namespace

void HitShapes::beginObject(const Paint& paint, const AIRealRect& limit, std::uint32_t scope) {
  const auto outline = static_cast<std::uint32_t>(outlines_.size());
  const auto piece = static_cast<std::uint32_t>(strokes_.size());
  objects_.push_back({paint, limit, scope, outline, outline, piece, piece});
}

void HitShapes::addPath(const PathGeometry& path) {
  Object& object = objects_.back();
  const bool stroked = object.paint.strokeRequest != 0;
  if (!stroked && object.paint.fillRequest == 0) return;
  curveEnds_.clear();
  const std::uint32_t outline = outlines_.add(path, stroked ? &curveEnds_ : nullptr);
  object.endOutline = outline + 1;
  addBands(outline);
  if (!stroked) return;
  strokes_.add(outlines_, outline, path, curveEnds_, object.paint.pen);
  object.endPiece = static_cast<std::uint32_t>(strokes_.size());
}

void HitShapes::addBox(const AIRealRect& box) {
  const std::uint32_t outline = outlines_.addBox(box);
  objects_.back().endOutline = outline + 1;
  addBands(outline);
}

void HitShapes::addBands(std::uint32_t outline) {
  const bool filled = objects_.back().paint.fillRequest != 0;
  bandsOfOutline_.push_back(filled ? bands_.add(outlines_[outline], outlines_.ring(outline).vertices())
                                   : HitBands::Ref{});
}

std::vector<HitEntry> HitShapes::entries() const {
  std::vector<HitEntry> entries;
  for (std::uint32_t i = 0; i < objects_.size(); ++i) {
    const Object& object = objects_[i];
    if (object.paint.fillRequest != 0) {
      const std::uint32_t tag = object.paint.fillRequest | (object.paint.evenOdd ? kEvenOddTag : 0);
      for (std::uint32_t id = object.firstOutline; id < object.endOutline; ++id) {
        const HitBox& box = outlines_[id].box;
        if (isEmpty(intersect(box.rect(), object.limit)) || outlines_[id].vertexCount < 4) continue;
        entries.push_back({box, 2 * i, 0, tag & 15, bandsOfOutline_[id]});
      }
    }
    for (std::uint32_t piece = object.firstPiece; piece < object.endPiece; ++piece) {
      const HitBox box(strokes_[piece].bounds);
      if (isEmpty(intersect(box.rect(), object.limit))) continue;
      entries.push_back({box, 2 * i + 1, piece & 0xFFFFFFF, object.paint.strokeRequest & 15U, {}});
    }
  }
  return entries;
}

void HitShapes::finish() {
  const std::vector<HitEntry> all = entries();
  std::vector<AIRealRect> boxes;
  boxes.reserve(all.size());
  bounds_ = kEmptyRect;
  for (const HitEntry& entry : all) {
    boxes.push_back(intersect(entry.box.rect(), objects_[objectOf(entry.shape)].limit));
    bounds_ = unite(bounds_, boxes.back());
  }
  if (all.empty()) return;
  region_ = mainRegionOf(boxes, bounds_);
  grid_.build(region_, all);
}

bool HitShapes::outlineCovers(std::uint32_t object, std::uint32_t outline, bool stroke,
                              AIRealPoint point) const {
  if (!stroke) {
    const int winding = bands_.winding(bandsOfOutline_[outline], outlines_[outline].box, point);
    return objects_[object].paint.evenOdd ? winding % 2 != 0 : winding != 0;
  }
  for (std::uint32_t piece = objects_[object].firstPiece; piece < objects_[object].endPiece; ++piece) {
    if (strokes_[piece].outline == outline && strokes_.covers(outlines_, piece, point)) return true;
  }
  return false;
}

}  // namespace host
