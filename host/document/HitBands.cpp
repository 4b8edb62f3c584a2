#include "HitBands.h"

#include <algorithm>
#include <limits>

namespace host {

namespace {

constexpr std::uint32_t kEdgesInBand = 3;

std::uint32_t bandAt(std::uint32_t bandCount, std::uint32_t y) {
  return static_cast<std::uint32_t>((std::uint64_t{y} * bandCount) >> 32);
}

// So many that an edge lies in three bands at most, on average.
std::uint32_t usefulBands(const HitVertex* ring, std::uint32_t edges) {
  std::uint64_t climb = 0;
  for (std::uint32_t i = 0; i < edges; ++i) {
    const auto [low, high] = std::minmax(ring[i].y, ring[i + 1].y);
    climb += high - low;
  }
  const std::uint64_t limit = climb > 0 ? std::uint64_t{HitVertex::kMost} * 2 * edges / climb : 1;
  return static_cast<std::uint32_t>(
      std::clamp<std::uint64_t>(edges / kEdgesInBand, 1, std::max<std::uint64_t>(limit, 1)));
}

// Visits the bands of every edge. Level ones cross no ray, so they are left out.
template <typename Visit>
void forEachBand(const HitVertex* ring, std::uint32_t edges, std::uint32_t bandCount, Visit visit) {
  for (std::uint32_t edge = 0; edge < edges; ++edge) {
    const auto [low, high] = std::minmax(ring[edge].y, ring[edge + 1].y);
    if (low == high) continue;
    const std::uint32_t last = bandAt(bandCount, high);
    for (std::uint32_t band = bandAt(bandCount, low); band <= last; ++band) visit(band, edge);
  }
}

// `ends` says where each band begins, and afterwards where it ends. Numbers are narrowed by `shift` bits.
template <typename Number>
void store(std::vector<Number>& numbers, const HitVertex* ring, std::uint32_t edges,
           std::vector<std::uint32_t>& ends, int shift) {
  const auto bandCount = static_cast<std::uint32_t>(ends.size() - 1);
  for (const std::uint32_t begin : ends) numbers.push_back(static_cast<Number>(begin));
  const std::size_t firstEdge = numbers.size();
  numbers.resize(firstEdge + std::size_t{4} * ends.back());
  Number* const at = numbers.data() + firstEdge;
  forEachBand(ring, edges, bandCount, [&](std::uint32_t band, std::uint32_t edge) {
    Number* const to = at + std::size_t{4} * ends[band]++;
    to[0] = static_cast<Number>(ring[edge].x >> shift);
    to[1] = static_cast<Number>(ring[edge].y >> shift);
    to[2] = static_cast<Number>(ring[edge + 1].x >> shift);
    to[3] = static_cast<Number>(ring[edge + 1].y >> shift);
  });
}

// +1 or -1 if the edge crosses the ray from the point to the right, upwards or downwards. Vertices lie on
// whole numbers, so the whole part of the point's y will do to tell above from below.
template <typename Number>
int crossing(const Number* edge, AIRealPoint point, Number pointRow) {
  const bool startsBelow = edge[1] <= pointRow;
  if (startsBelow == (edge[3] <= pointRow)) return 0;
  const double x = edge[0];
  const double y = edge[1];
  const double side = (edge[2] - x) * (point.y - y) - (edge[3] - y) * (point.x - x);
  if (startsBelow) return side > 0 ? 1 : 0;
  return side < 0 ? -1 : 0;
}

template <typename Number>
int windingIn(const Number* begins, std::uint32_t bandCount, double x, double y, std::uint32_t stepLength) {
  const auto row = static_cast<Number>(y);
  const std::uint32_t band = bandAt(bandCount, row * stepLength);
  const Number* const edges = begins + bandCount + 1;
  int sum = 0;
  for (std::uint32_t i = begins[band]; i < begins[band + 1]; ++i) {
    sum += crossing(edges + std::size_t{4} * i, {x, y}, row);
  }
  return sum;
}

}  // namespace

HitBands::Ref HitBands::add(const HitOutline& outline, const HitVertex* ring) {
  const std::uint32_t edges = outline.vertexCount - 1;
  const std::uint32_t bandCount = usefulBands(ring, edges);
  // Counted first, one place to the right, then summed up, then filled in.
  sizes_.assign(bandCount + 1, 0);
  forEachBand(ring, edges, bandCount, [this](std::uint32_t band, std::uint32_t) { ++sizes_[band + 1]; });
  for (std::uint32_t band = 0; band < bandCount; ++band) sizes_[band + 1] += sizes_[band];
  const bool narrow = outline.isNarrow() && sizes_[bandCount] <= std::numeric_limits<std::uint16_t>::max();
  const std::size_t first = narrow ? narrow_.size() : wide_.size();
  if (narrow) {
    store(narrow_, ring, edges, sizes_, 16);
  } else {
    store(wide_, ring, edges, sizes_, 0);
  }
  return {static_cast<std::uint32_t>(first), bandCount & 0x7FFFFFFFU, narrow};
}

int HitBands::winding(const Ref& bands, const HitBox& box, AIRealPoint point) const {
  const double x = (point.x - box.left) / box.width();
  const double y = (point.y - box.bottom) / box.height();
  if (!(x >= 0 && x <= 1 && y >= 0 && y <= 1)) return 0;
  if (bands.narrow != 0) {
    constexpr std::uint16_t kMost = std::numeric_limits<std::uint16_t>::max();
    return windingIn(narrow_.data() + bands.first, bands.count, x * kMost, y * kMost, HitVertex::kNarrowStep);
  }
  return windingIn(wide_.data() + bands.first, bands.count, x * HitVertex::kMost, y * HitVertex::kMost, 1);
}

}  // namespace host
