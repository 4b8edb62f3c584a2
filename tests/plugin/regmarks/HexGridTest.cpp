#include "HexGrid.h"

#include <set>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace Vandrell::Corvane {
namespace {

// A grid of 1 by 1 cells, drawn as text: the top row first, '#' for art. Odd columns stand half a cell
// higher, so a cell's row is its position rounded down.
class Field {
 public:
  explicit Field(std::vector<std::string> rowsFromTop) : rows_(std::move(rowsFromTop)) {}

  PositionList Candidates() {
    const auto columns = static_cast<std::int32_t>(rows_.front().size()) - 1;
    const auto rows = static_cast<std::int32_t>(rows_.size()) - 1;
    HexGrid grid({0, 0, static_cast<double>(columns), static_cast<double>(rows)}, {columns, rows});
    grid.Probe([this](const AIRealPoint& point) { return Probe(point); });
    return grid.Candidates();
  }

  std::size_t probes() const { return probed_.size(); }

 private:
  AreaState Probe(const AIRealPoint& point) {
    const auto column = static_cast<std::size_t>(point.x);
    const auto row = static_cast<std::size_t>(point.y);
    EXPECT_DOUBLE_EQ(point.y, static_cast<double>(row) + (column % 2 == 1 ? 0.5 : 0.0));
    EXPECT_TRUE(probed_.insert({column, row}).second) << "probed twice: " << column << ", " << row;
    return rows_[rows_.size() - 1 - row][column] == '#' ? kOccupied : kFree;
  }

  std::vector<std::string> rows_;
  std::set<std::pair<std::size_t, std::size_t>> probed_;
};

TEST(HexGrid, ProbesOnceWhatCanBeReachedAndNothingElse) {
  Field field({
      ".........",
      ".#######.",
      ".#.#...#.",
      ".###.#.#.",
      ".#...#.#.",
      ".#####.#.",
      ".......#.",
      ".........",
  });
  field.Candidates();
  EXPECT_EQ(field.probes(), 9U * 8U - 1U);
}

}  // namespace
}  // namespace Vandrell::Corvane
