#include "FifthMark.h"

#include <gtest/gtest.h>

namespace Vandrell::Corvane {
namespace {

struct Case {
  const char* what;
  double width, height;  // of the frame, whose lower left corner is (90, 90)
  double distance;
  std::optional<AIRealPoint> expected;
};

TEST(FifthMark, TakesTheFirstPlaceWithRoom) {
  const double extent = 10;
  const Case cases[] = {
      {"wide, but not for the distance", 270, 420, 283.46, AIRealPoint{225, 90}},
      {"distance leaves exactly two extents", 300, 100, 280, AIRealPoint{370, 90}},
      {"a hair less", 299.99, 100, 280, AIRealPoint{239.995, 90}},
      {"narrow, distance leaves exactly two extents above", 30, 300, 280, AIRealPoint{120, 370}},
      {"four extents wide are not enough", 40, 30, 283.46, std::nullopt},
      {"four extents wide, a little taller", 40, 41, 283.46, AIRealPoint{130, 110.5}},
      {"four extents high are not enough", 39, 40, 283.46, std::nullopt},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const AIRealRect frame{90, 90 + c.height, 90 + c.width, 90};
    const auto mark = FifthMark(frame, extent, c.distance);
    ASSERT_EQ(mark.has_value(), c.expected.has_value());
    if (!mark) continue;
    EXPECT_NEAR(mark->x, c.expected->x, 1e-9);
    EXPECT_NEAR(mark->y, c.expected->y, 1e-9);
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
