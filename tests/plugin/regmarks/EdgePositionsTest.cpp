#include "EdgePositions.h"

#include <gtest/gtest.h>

#include "Drawing.h"
#include "ExpectPositions.h"

namespace Vandrell::Corvane {
namespace {

constexpr AIRealRect kA4{0, 595.28, 841.89, 0};

constexpr double e = 28.34645669291339;
constexpr double f = 113.3858267717;

PositionList InnerRing() {
  return {{159.2126377953, f},
          {290.0788188976, f},
          {420.945, f},
          {682.6773622047, f},
          {728.5041732283, 162.9932283465},
          {728.5041732283, 432.2867716535},
          {682.6773622047, 481.8941732283},
          {420.945, 481.8941732283},
          {159.2126377953, 481.8941732283},
          {f, 432.2867716535},
          {f, 162.9932283465}};
}

// The outer ring, then the inner one.
PositionList Rings() {
  const double x = 813.5435433071, y = 566.9335433071;
  PositionList rings{
      {e, e}, {551.8111811024, e}, {x, e}, {x, 297.64}, {x, y}, {551.8111811024, y}, {290.0788188976, y},
      {e, y}, {e, 297.64}};
  for (const AIRealPoint& position : InnerRing()) rings.push_back(position);
  return rings;
}

PositionList Place(double extent, std::int32_t expectedFailures) {
  PositionList positions;
  std::int32_t failures = 0;
  EXPECT_EQ(EdgePositions(extent, positions, failures), kNoErr);
  EXPECT_EQ(failures, expectedFailures);
  return positions;
}

TEST(EdgePositions, LieInTwoRingsInDocumentUnits) {
  for (const double scale : {1.0, 10.0}) {
    Drawing drawing({0, kA4.top / scale, kA4.right / scale, 0}, scale);
    PositionList expected = Rings();
    for (AIRealPoint& position : expected) position = {position.x / scale, position.y / scale};
    ExpectPositions(Place(17 / scale, 0), expected);
  }
}

TEST(EdgePositions, FallAwayOnlyWhereTheirStripIsOccupied) {
  Drawing drawing(kA4);
  drawing.addRectangle(588, 5, 600, 10);  // within 36.8 of the strip of (551.8, e), and of no other
  PositionList expected = Rings();
  expected.erase(expected.begin() + 1);
  ExpectPositions(Place(17, 0), expected);

  // The whole left side: the strips from the inner ring to the edge are occupied too.
  drawing.addRectangle(5, 0, 10, 595.28);
  expected.erase(expected.end() - 2, expected.end());
  expected.erase(expected.begin() + 6, expected.begin() + 8);
  expected.erase(expected.begin());
  ExpectPositions(Place(17, 0), expected);
}

TEST(EdgePositions, CountFreeMarksTooLargeForTheArtboard) {
  Drawing drawing(kA4);
  ExpectPositions(Place(57, 9), InnerRing());  // just over twice 10 mm
}

TEST(EdgePositions, LeaveOutTheSidesTheArtboardIsTooNarrowFor) {
  Drawing drawing({0, 842, 50, 0});
  const PositionList positions = Place(1, 6);  // the inner ring of the long sides lies beyond the far edge
  EXPECT_EQ(positions.size(), 6U);
  for (const AIRealPoint& position : positions) {
    EXPECT_TRUE(position.x == 50 - e || position.x == e) << position.x;
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
