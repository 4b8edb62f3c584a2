#include "EdgePositions.h"

#include <gtest/gtest.h>

#include "Drawing.h"
#include "ExpectPositions.h"

namespace Vandrell::Corvane {
namespace {

constexpr AIRealRect kA4{0, 595.28, 841.89, 0};

PositionList OuterRing() {
  const double e = 28.34645669291339;
  return {{e, e},
          {551.8111811024, e},
          {813.5435433071, e},
          {813.5435433071, 297.64},
          {813.5435433071, 566.9335433071},
          {551.8111811024, 566.9335433071},
          {290.0788188976, 566.9335433071},
          {e, 566.9335433071},
          {e, 297.64}};
}

PositionList InnerRing() {
  const double f = 113.3858267717;
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

PositionList Rings() {
  PositionList rings = OuterRing();
  const PositionList inner = InnerRing();
  rings.insert(rings.end(), inner.begin(), inner.end());
  return rings;
}

PositionList Place(double extent, std::int32_t expectedFailures) {
  PositionList positions;
  std::int32_t failures = 0;
  EXPECT_EQ(EdgePositions(extent, positions, failures), kNoErr);
  EXPECT_EQ(failures, expectedFailures);
  return positions;
}

TEST(EdgePositions, LieInTwoRingsOnAFreeArtboard) {
  Drawing drawing(kA4);
  const AIRealRect view = drawing.view().bounds();
  ExpectPositions(Place(17, 0), Rings());
  EXPECT_EQ(drawing.view().bounds().left, view.left);
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

TEST(EdgePositions, StandInDocumentUnits) {
  Drawing drawing({0, 59.528, 84.189, 0}, 10);
  PositionList expected = Rings();
  for (AIRealPoint& position : expected) position = {position.x / 10, position.y / 10};
  ExpectPositions(Place(1.7, 0), expected);
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
    EXPECT_TRUE(position.x == 50 - 28.34645669291339 || position.x == 28.34645669291339) << position.x;
  }
}

TEST(EdgePositions, HandOnWhatTheHostRefuses) {
  for (const char* rule : {"AI Artboard Suite:GetArtboardList", "AI Artboard Suite:GetActive",
                           "AI Artboard Suite:GetArtboardProperties", "AI Artboard Suite:GetPosition"}) {
    SCOPED_TRACE(rule);
    Drawing drawing(kA4);
    ASSERT_EQ(drawing.host.refusal().add(rule), "");
    PositionList positions;
    std::int32_t failures = 0;
    EXPECT_EQ(EdgePositions(17, positions, failures), kSPCanceledByHostError);
    EXPECT_TRUE(positions.empty());
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
