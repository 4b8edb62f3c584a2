#include "AutoPositions.h"

#include <random>

#include <gtest/gtest.h>

#include "Drawing.h"
#include "ExpectPositions.h"
#include "ProbeArea.h"

namespace Vandrell::Corvane {
namespace {

PositionList Place(std::int64_t count, double extent) {
  PositionList positions{{-1, -1}};  // replaced
  EXPECT_EQ(AutoPositions(count, extent, positions), kNoErr);
  return positions;
}

double Random(std::mt19937& engine, double from, double to) {
  return from + (to - from) * (static_cast<double>(engine() % 100'000) / 100'000);
}

// Scattered ellipses, rings with a free inside, and bars that make pockets.
void AddShapes(Drawing& drawing, std::mt19937& engine, const AIRealRect& area) {
  const double size = area.right - area.left;
  for (int i = 0; i < 6; ++i) {
    const AIRealPoint center{Random(engine, area.left, area.right), Random(engine, area.bottom, area.top)};
    const double radius = Random(engine, size / 50, size / 8);
    switch (engine() % 3) {
      case 0:
        drawing.addEllipse(center, radius, Random(engine, size / 50, size / 8));
        break;
      case 1:
        drawing.addRing(center, radius, radius + size / 40);
        break;
      default:
        drawing.addRectangle(center.x, center.y, center.x + 3 * radius, center.y + size / 60);
        drawing.addRectangle(center.x, center.y, center.x + size / 60, center.y + 2 * radius);
    }
  }
}

// Worked out once by a second, slower implementation of the same rules.
TEST(AutoPositions, StandWhereTheRulesPutThem) {
  const struct {
    AIRealRect artboard, area;
    double scale, extent;
    int count;
    PositionList expected;
  } cases[] = {
      {{0, 100, 100, 0},
       {20, 80, 80, 20},
       10,
       2.2,
       9,
       {{12.5441, 64.1608},
        {15.0055, 80.1776},
        {27.3125, 22.2706},
        {24.8511, 35.8233},
        {19.9283, 55.5363},
        {27.3125, 64.1608},
        {37.1581, 71.5531},
        {29.7739, 87.5700},
        {49.4651, 65.3928},
        {56.8493, 56.7684},
        {71.6177, 66.6249},
        {86.3860, 61.6966},
        {83.9246, 77.7135},
        {98.6930, 65.3928}}},
      {{0, 400, 400, 0},
       {150, 250, 250, 150},
       1,
       60,
       5,
       {{31.6667, 165.3333}, {299.0000, 98.5000}, {299.0000, 365.8333}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.extent);
    std::mt19937 engine(1);
    Drawing drawing(c.artboard, c.scale);
    AddShapes(drawing, engine, c.area);
    ExpectPositions(Place(c.count, c.extent), c.expected, 1e-4);
  }
}

// On so small a page there are three candidates, which are not spread over sectors.
TEST(AutoPositions, DoNotHeedTheCountForThreeCandidates) {
  Drawing drawing({0, 51, 40, 0});
  drawing.addRectangle(0, 0, 22, 22);
  const PositionList expected = Place(2, 20);
  EXPECT_EQ(expected.size(), 1U);
  for (const std::int64_t count : {0, 9}) ExpectPositions(Place(count, 20), expected);
}

TEST(AutoPositions, AreNoneWhereNothingFits) {
  const struct {
    const char* what;
    AIRealRect artboard;
    double left, extent;
  } cases[] = {
      {"art far off the page", {0, 100, 100, 0}, 2000, 10},
      {"a grid of less than four cells", {0, 100, 300, 0}, 520, 30},
      {"a negative extent", {0, 792, 612, 0}, 100, -10},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    Drawing drawing(c.artboard);
    drawing.addRectangle(c.left, 40, c.left + 20, 60);
    EXPECT_TRUE(Place(6, c.extent).empty());
  }
}

TEST(AutoPositions, BringTheArtIntoView) {
  // The view is 1024 by 768 pixels, the art 200 by 100 around (300, 200).
  const struct {
    const char* what;
    AIRealPoint center;
    double zoom;
    bool stays;
  } cases[] = {
      {"art just inside on the left", {300 - 100 + 511, 200}, 1, true},
      {"art touches the left edge", {300 - 100 + 512, 200}, 1, false},
      {"art touches the bottom edge", {300, 200 - 50 + 384}, 1, false},
      {"zoomed in", {300, 200}, 10, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    Drawing drawing;
    drawing.addRectangle(200, 150, 400, 250);
    host::View& view = drawing.view();
    view.setViewport(1024, 768);
    view.setCenter(c.center);
    view.setZoom(c.zoom);
    Place(6, 10);
    ExpectPositions({view.center()}, {c.stays ? c.center : AIRealPoint{300, 200}});
    // 250 units wide on 1024 pixels and 150 high on 768: the width decides.
    EXPECT_NEAR(view.zoom(), c.stays ? c.zoom : 1024.0 / 250, 1e-9);
  }
}

TEST(ProbeArea, TestsAboutEveryTwoUnitsWithBothEdges) {
  const std::pair<AIRealRect, AreaState> cases[] = {
      {{50.4, 60, 60, 50.4}, kOccupied},  // just over a corner
      {{50.6, 60, 60, 40}, kFree},        // just beside
      {{49, 51, 51, 49}, kFree},          // small art between two samples
      {{50, 60, 50, 40}, kOccupied},      // a line through it
      {{40, 60, 60.5, 39.5}, kOccupied},  // on a sample
  };
  Drawing drawing;
  drawing.addRectangle(49.5, 49.5, 50.5, 50.5);
  for (const auto& [probe, expected] : cases) {
    EXPECT_EQ(static_cast<int>(ProbeArea(probe)), expected) << probe.left;
  }
  for (const double reach : {1e3, 1e8}) {
    EXPECT_EQ(ProbeArea({-reach, reach, reach, -reach}), kOccupied) << reach;
  }
  ProbeArea({-1e300, 1e300, 1e300, -1e300});  // ends
}

}  // namespace
}  // namespace Vandrell::Corvane
