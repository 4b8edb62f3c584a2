// Arbitrary bytes as path data and as the points of a polyline.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "Expect.h"
#include "FuzzTarget.h"
#include "Geometry.h"
#include "SvgPathData.h"
#include "SvgPathText.h"

namespace {

using host::PathGeometry;

// Beyond this the sums of relative coordinates and of arcs lose more than the last few places.
constexpr double kLargest = 1e100;

double Largest(const std::vector<PathGeometry>& paths) {
  double largest = 0;
  for (const PathGeometry& path : paths) {
    for (const AIPathSegment& segment : path.segments) {
      for (const AIRealPoint& point : {segment.in, segment.p, segment.out}) {
        if (!std::isfinite(point.x) || !std::isfinite(point.y)) return HUGE_VAL;
        largest = std::max({largest, std::abs(point.x), std::abs(point.y)});
      }
    }
  }
  return largest;
}

// An open path has no use for handles beyond its ends.
void DropOuterHandles(PathGeometry& path) {
  if (path.closed) return;
  path.segments.front().in = path.segments.front().p;
  path.segments.back().out = path.segments.back().p;
}

bool Same(const AIPathSegment& one, const AIPathSegment& other) {
  return one.p.x == other.p.x && one.p.y == other.p.y && one.in.x == other.in.x && one.in.y == other.in.y &&
         one.out.x == other.out.x && one.out.y == other.out.y;
}

bool Same(const PathGeometry& one, const PathGeometry& other) {
  return one.closed == other.closed &&
         std::equal(one.segments.begin(), one.segments.end(), other.segments.begin(), other.segments.end(),
                    [](const AIPathSegment& a, const AIPathSegment& b) { return Same(a, b); });
}

void ExpectKept(const std::vector<PathGeometry>& paths) {
  for (PathGeometry path : paths) {
    DropOuterHandles(path);
    std::string text;
    host::appendPathData(text, path, host::kIdentity);
    host::SvgOutline again;
    Expect(!host::readPathData(text, again), "what was written is path data");
    const std::vector<PathGeometry> read = again.paths(host::kIdentity);
    if (path.segments.size() == 1 && !path.closed) continue;  // a mere move
    Expect(read.size() == 1, "one path is read back as one");
    Expect(Same(read.front(), path), "a path is read back as it was");
  }
}

void Check(std::string_view data, const std::optional<host::SvgFault>& fault,
           const host::SvgOutline& outline) {
  if (fault)
    Expect(fault->offset <= data.size() && !fault->reason.empty(), "a fault has its place and reason");
  const std::vector<PathGeometry> paths = outline.paths(host::kIdentity);
  for (const PathGeometry& path : paths) Expect(!path.segments.empty(), "a path has a segment");
  if (Largest(paths) < kLargest) ExpectKept(paths);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  host::SvgOutline outline;
  Check(text, host::readPathData(text, outline), outline);
  host::SvgOutline points;
  Check(text, host::readPoints(text, size % 2 == 0, points), points);
  return 0;
}
