#include <gtest/gtest.h>

#include "ExpectPositions.h"
#include "SectorPicking.h"

namespace Vandrell::Corvane {
namespace {

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
      {"the earlier of two as near", 2, {{10, 20}, {20, 10}, {90, 80}, {80, 90}}, {{10, 20}, {90, 80}}},
      {"the far corner of a sector is out of reach, just before it is not",
       2,
       {{50, 50}, {49, 49}},
       {{49, 49}}},
      {"beyond the last column or row", 2, {{100, 10}, {10, 100}}, {}},
      {"far more sectors than candidates", 1'000'000'000'000, {{10, 10}}, {{10, 10}}},
  };
  for (const PickCase& c : cases) {
    SCOPED_TRACE(c.what);
    ExpectPositions(PickPerSector(c.candidates, area, c.count), c.expected);
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
