#include "Geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

#include "Cubic.h"
#include "DrawingMaker.h"
#include "Vector.h"

namespace host {
namespace {

using testing::curved;
using testing::Points;
using testing::straight;

double distanceToPolyline(AIRealPoint p, const std::vector<AIRealPoint>& line) {
  double least = HUGE_VAL;
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    const AIRealPoint edge = line[i + 1] - line[i];
    const double along = std::clamp(dot(p - line[i], edge) / squaredLength(edge), 0.0, 1.0);
    least = std::min(least, length(line[i] + edge * along - p));
  }
  return least;
}

TEST(Flatten, KeepsToTheToleranceWithFewPoints) {
  const std::tuple<Points, double, std::size_t> cases[] = {
      {{{0, 0}, {0, 55.2}, {44.8, 100}, {100, 100}}, 0.01, 70},  // a quarter of a circle
      {{{0, 0}, {0, 55.2}, {44.8, 100}, {100, 100}}, 1, 8},
      {{{0, 0}, {100, 0}, {-50, 0}, {50, 0}}, 0.01, 150},       // turns back on a line
      {{{0, 0}, {100, 100}, {0, 100}, {100, 0}}, 0.01, 150},    // a cusp
      {{{0, 0}, {30, 0.001}, {60, -0.001}, {90, 0}}, 0.01, 2},  // as good as straight
      {{{0, 0}, {0, 0}, {90, 90}, {90, 90}}, 0.01, 2},
      {{{5, 5}, {25, 5}, {5, 25}, {5, 5}}, 0.01, 60},  // a loop
      {{{5, 5}, {5, 5}, {5, 5}, {5, 5}}, 0.01, 1},
  };
  for (const auto& [points, tolerance, most] : cases) {
    const std::vector<AIRealPoint> line = flatten(curved(points, false), tolerance, false);
    EXPECT_LE(line.size(), most);
    EXPECT_TRUE(line.front() == points.front() && line.back() == points.back());
    const Cubic curve{points[0], points[1], points[2], points[3]};
    for (int i = 0; i <= 1000 && line.size() > 1; ++i) {
      ASSERT_LE(distanceToPolyline(pointAt(curve, i / 1000.0), line), tolerance * 1.0001) << i;
    }
  }
}

TEST(Flatten, ClosesWhatIsClosedAndWhatItIsToldTo) {
  const Points corners = {{0, 0}, {10, 0}, {10, 10}};
  EXPECT_EQ(flatten(straight(corners, false), 0.1, false).size(), 3U);
  EXPECT_EQ(flatten(straight(corners, false), 0.1, true).size(), 4U);
  EXPECT_EQ(flatten(straight(corners, true), 0.1, false).size(), 4U);
  EXPECT_EQ(flatten(straight(corners, true), 0.1, true).size(), 4U);
  EXPECT_EQ(flatten(straight({{0, 0}, {0, 0}, {5, 0}, {5, 0}, {0, 0}}, true), 0.1, true).size(), 3U);
  EXPECT_EQ(flatten(straight({{1, 1}}, true), 0.1, true).size(), 1U);
  EXPECT_TRUE(flatten(PathGeometry{}, 0.1, true).empty());
}

TEST(Flatten, IsBoundedWhateverTheNumbers) {
  const double nan = std::nan("");
  const double huge = std::numeric_limits<double>::max();
  for (const double size : {1e9, huge, nan}) {
    for (const double tolerance : {1e-9, 0.0, -1.0, nan}) {
      const PathGeometry path = curved({{0, 0}, {0, size}, {size, size}, {size, 0}}, false);
      EXPECT_LE(flatten(path, tolerance, true).size(), static_cast<std::size_t>(kMaxCurveSteps) + 2);
    }
  }
}

}  // namespace
}  // namespace host
