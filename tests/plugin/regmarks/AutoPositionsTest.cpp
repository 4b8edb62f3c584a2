#include "AutoPositions.h"

#include <random>

#include <gtest/gtest.h>

#include "ArtBounds.h"
#include "Drawing.h"
#include "ExpectPositions.h"
#include "NaiveAutoPositions.h"
#include "ProbeArea.h"

namespace Vandrell::Corvane {
namespace {

PositionList Place(std::int64_t count, double extent) {
  PositionList positions{{-1, -1}};  // replaced
  EXPECT_EQ(AutoPositions(count, extent, positions), kNoErr);
  return positions;
}

PositionList PlaceNaively(const AIRealRect& artboard, double scale, int count, double extent) {
  NaiveInput input{
      count,          extent,           scale, artboard.right - artboard.left, artboard.top - artboard.bottom,
      -artboard.left, -artboard.bottom, {}};
  EXPECT_EQ(GetArtBoundsWithoutRegmarks(input.art), kNoErr);
  return NaiveAutoPositions(input);
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

TEST(AutoPositions, AgreeWithTheNaiveWay) {
  struct Setting {
    AIRealRect artboard, area;
    double scale, extent;
    int count;
  };
  const Setting settings[] = {
      {{0, 792, 612, 0}, {150, 600, 450, 200}, 1, 19.8, 6},
      {{0, 792, 612, 0}, {150, 600, 450, 200}, 1, 7, 2},
      {{0, 792, 612, 0}, {0, 792, 612, 0}, 1, 17, 10},
      {{-300, 900, 1700, -100}, {0, 800, 1400, 0}, 1, 31, 12},
      {{700, 1400, 1300, 200}, {800, 1300, 1200, 300}, 1, 24, 7},
      {{0, 100, 100, 0}, {20, 80, 80, 20}, 10, 2.2, 9},
      {{0, 792, 612, 0}, {500, 900, 800, 500}, 1, 20, 8},  // art that hangs over the page
      {{0, 400, 400, 0}, {150, 250, 250, 150}, 1, 60, 5},
  };
  std::size_t placed = 0;
  for (unsigned seed = 1; seed <= 2; ++seed) {
    for (const Setting& s : settings) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << ", extent " << s.extent << ", count " << s.count);
      std::mt19937 engine(seed);
      Drawing drawing(s.artboard, s.scale);
      AddShapes(drawing, engine, s.area);
      const PositionList expected = PlaceNaively(s.artboard, s.scale, s.count, s.extent);
      ExpectPositions(Place(s.count, s.extent), expected);
      placed += expected.size();
    }
  }
  EXPECT_GT(placed, 50U);
}

// On so small a page there are three candidates, which are not spread over sectors.
TEST(AutoPositions, DoNotHeedTheCountForThreeCandidates) {
  const AIRealRect page{0, 51, 40, 0};
  Drawing drawing(page);
  drawing.addRectangle(0, 0, 22, 22);
  const PositionList expected = PlaceNaively(page, 1, 2, 20);
  EXPECT_EQ(expected.size(), 1U);
  for (const std::int64_t count : {0, 2, 9}) {
    ExpectPositions(Place(count, 20), expected);
  }
}

TEST(AutoPositions, AreNoneWhereNothingFits) {
  const struct {
    const char* what;
    AIRealRect artboard;
    double left, extent;
  } cases[] = {
      {"art far off the page", {0, 100, 100, 0}, 2000, 10},
      {"a grid of less than four cells", {0, 100, 300, 0}, 520, 30},
      {"no extent", {0, 792, 612, 0}, 100, 0},
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
  drawing.host.refusal().add("AI Hit Test Suite:GetHitData");
  EXPECT_EQ(ProbeArea(cases[4].first), kFree);
}

TEST(ProbeArea, FindsArtInAreasOfAnySize) {
  Drawing drawing;
  drawing.addRectangle(100, 100, 103, 103);
  for (const double reach : {1e3, 1e4, 1e6, 1e8}) {
    SCOPED_TRACE(reach);
    EXPECT_EQ(ProbeArea({-reach, reach, reach, -reach}), kOccupied);
    EXPECT_EQ(ProbeArea({104, reach, 2 * reach, -reach}), kFree);
  }
  ProbeArea({-1e300, 1e300, 1e300, -1e300});  // ends
}

}  // namespace
}  // namespace Vandrell::Corvane
