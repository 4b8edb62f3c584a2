#include <gtest/gtest.h>

#include "ExpectPositions.h"
#include "SectorPicking.h"
#include "Thinning.h"

namespace Vandrell::Corvane {
namespace {

struct LayoutCase {
  double width, height;
  std::int64_t count, columns, rows;
};

TEST(SectorsOf, GivesTheLongSideTheCount) {
  const LayoutCase cases[] = {
      {343, 243, 6, 6, 4},   {243, 343, 6, 4, 6},      {100, 100, 5, 5, 5},    {1000, 10, 2, 2, 2},
      {1000, 10, 12, 12, 2}, {1000, 124.9, 20, 20, 2}, {1000, 125, 20, 20, 3}, {300, 100, 1, 1, 2},
      {300, 100, 0, 0, 0},   {300, 100, -4, 0, 0},
  };
  for (const LayoutCase& c : cases) {
    SCOPED_TRACE(testing::Message() << c.width << " x " << c.height << ", " << c.count);
    const SectorLayout sectors = SectorsOf({45, 45, c.width, c.height}, c.count);
    EXPECT_EQ(sectors.columns, c.columns);
    EXPECT_EQ(sectors.rows, c.rows);
    if (c.columns == 0) continue;
    EXPECT_DOUBLE_EQ(sectors.width, c.width / static_cast<double>(c.columns));
    EXPECT_DOUBLE_EQ(sectors.height, c.height / static_cast<double>(c.rows));
  }
}

struct PickCase {
  const char* what;
  std::int64_t count;
  PositionList candidates, expected;
};

// The area is 100 by 100 from (0, 0): with a count of 2 sectors are 50 by 50, and their targets are the
// corners of the area.
TEST(PickPerSector, TakesTheNearestToEachTarget) {
  const GridArea area{0, 0, 100, 100};
  const PickCase cases[] = {
      {"outwards, column by column",
       2,
       {{60, 10}, {90, 90}, {10, 40}, {40, 10}, {10, 10}, {90, 60}, {20, 80}},
       {{10, 10}, {20, 80}, {60, 10}, {90, 90}}},
      {"the earlier of two as near", 2, {{10, 20}, {20, 10}, {90, 80}, {80, 90}}, {{10, 20}, {90, 80}}},
      {"the far corner of a sector is out of reach, just before it is not",
       2,
       {{50, 50}, {49, 49}},
       {{49, 49}}},
      {"beyond the last column or row", 2, {{100, 10}, {10, 100}, {120, 120}}, {}},
      {"middle targets of three stand on the middle of the area",
       3,
       {{40, 50}, {52, 50}, {60, 50}},
       {{52, 50}}},
      {"a single column has its target at the left", 1, {{30, 5}, {10, 5}}, {{10, 5}}},
      {"no sectors", 0, {{10, 10}}, {}},
      {"far more sectors than candidates", 1'000'000'000'000, {{10, 10}}, {{10, 10}}},
  };
  for (const PickCase& c : cases) {
    SCOPED_TRACE(c.what);
    ExpectPositions(PickPerSector(c.candidates, area, c.count), c.expected);
  }
}

TEST(ThinOut, MeasuresAgainstWhatStays) {
  const PickCase cases[] = {
      {"nothing", 0, {}, {}},
      {"exactly as far as asked for", 0, {{0, 0}, {60, 84}}, {{0, 0}, {60, 84}}},
      {"a hair closer", 0, {{0, 0}, {60, 83.999}}, {{0, 0}}},
      {"close only to what goes", 0, {{0, 0}, {100, 0}, {200, 0}, {300, 0}}, {{0, 0}, {200, 0}}},
      {"close to one that is not the last", 0, {{0, 0}, {500, 0}, {-50, 50}}, {{0, 0}, {500, 0}}},
  };
  for (const PickCase& c : cases) {
    SCOPED_TRACE(c.what);
    PositionList positions = c.candidates;
    ThinOut(positions, 144);
    ExpectPositions(positions, c.expected);
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
