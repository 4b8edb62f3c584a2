#include <gtest/gtest.h>

#include "AutoGridArea.h"
#include "HexGrid.h"

namespace Vandrell::Corvane {
namespace {

struct Case {
  const char* what;
  PageGeometry page;
  AIRealRect art;
  GridArea area;
  std::int32_t columns, rows;  // 0: no grid
};

TEST(AutoGrid, CoversTheArtWithItsMarginHeldToThePage) {
  const Case cases[] = {
      {"room on all sides", {612, 792, {0, 0}}, {100, 200, 300, 100}, {45, 45, 343, 243}, 31, 22},
      {"art as large as the page", {612, 792, {0, 0}}, {0, 792, 612, 0}, {-17, -17, 679, 859}, 61, 78},
      {"coordinates start in the page",
       {612, 792, {50, 20}},
       {-40, 700, 500, 0},
       {-67, -37, 655, 825},
       59,
       75},
      {"art off the page to the right", {100, 100, {0, 0}}, {400, 60, 420, 40}, {345, -15, -195, 163}, 0, 0},
      {"three columns", {100, 100, {0, 0}}, {168, 60, 200, 40}, {113, -15, 37, 163}, 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const GridArea area = AutoGridArea(c.page, c.art, 10);
    EXPECT_NEAR(area.x, c.area.x, 1e-9);
    EXPECT_NEAR(area.y, c.area.y, 1e-9);
    EXPECT_NEAR(area.width, c.area.width, 1e-9);
    EXPECT_NEAR(area.height, c.area.height, 1e-9);
    const GridSize size = GridSizeFor(area, AutoCellSize(10)).value_or(GridSize{0, 0});
    EXPECT_EQ(size.columns, c.columns);
    EXPECT_EQ(size.rows, c.rows);
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
