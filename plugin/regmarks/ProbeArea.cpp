#include "ProbeArea.h"

#include <algorithm>

#include "AIHitTest.h"
#include "ArtBounds.h"
#include "Truncation.h"

namespace Vandrell::Corvane {
namespace {

// Samples along one axis: at low + i * step for i from first to last.
struct SampleRow {
  SampleRow(double from, double to) : low(from) {
    const std::int32_t fitting = TruncToInt32((to - from + 2.0) * 0.5);
    const std::int32_t count = fitting < 3 ? 2 : fitting;
    step = (to - from) / (count - 1);
    last = count - 1;
  }

  // Leaves out the samples that lie outside from..to, give or take one.
  void Clip(double from, double to) {
    const double highest = last;
    first = TruncToInt32(std::clamp((from - low) / step - 1.0, 0.0, highest));
    last = from > to ? first - 1 : TruncToInt32(std::clamp((to - low) / step + 1.0, 0.0, highest));
  }

  double low;
  double step;
  std::int32_t first = 0;
  std::int32_t last;
};

bool IsArtAt(const AIHitTestSuite& suite, const AIRealPoint& point) {
  AIHitRef hit = nullptr;
  if (suite.HitTest(nullptr, &point, kAllHitRequest, &hit) != kNoErr) return false;
  AIHitData data{};
  return suite.GetHitData(hit, &data) == kNoErr && data.hit == 1;
}

// From here on it pays to ask where art can be at all: a mark as large as a wall has more samples than
// anyone would wait for.
constexpr double kManySamples = 1e6;

void ClipToArt(SampleRow& xs, SampleRow& ys) {
  AIRealRect art;
  if (GetBoundsOfEverything(art) != kNoErr) return;
  xs.Clip(art.left, art.right);
  ys.Clip(art.bottom, art.top);
}

}  // namespace

bool IsArtAt(const AIRealPoint& point) {
  return IsArtAt(*sAIHitTest, point);
}

AreaState ProbeArea(const AIRealRect& rect) {
  SampleRow xs(rect.left, rect.right);
  SampleRow ys(rect.bottom, rect.top);
  if (static_cast<double>(xs.last) * static_cast<double>(ys.last) > kManySamples) ClipToArt(xs, ys);
  const AIHitTestSuite& suite = *sAIHitTest;
  for (std::int32_t i = xs.first; i <= xs.last; ++i) {
    const double x = xs.low + i * xs.step;
    for (std::int32_t j = ys.first; j <= ys.last; ++j) {
      if (IsArtAt(suite, {x, ys.low + j * ys.step})) return kOccupied;
    }
  }
  return kFree;
}

}  // namespace Vandrell::Corvane
