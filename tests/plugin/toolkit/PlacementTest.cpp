#include "Placement.h"

#include <gtest/gtest.h>

#include <tuple>

#include "ADMDialogMetrics.h"
#include "ItemKind.h"

namespace qRVADM {
namespace {

std::tuple<int, int, int, int> Sides(const ADMRect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}

TEST(Placement, AppliesFlagsInTheirOrder) {
  const ADMRect rect{10, 20, 40, 30};  // 30 by 10
  const ADMRect target{100, 200, 205, 261};
  const struct {
    int flags;
    ADMRect placed;
  } rows[] = {
      {kAlignBase, rect},
      {kStretchLeft, {100, 20, 40, 30}},
      {kStretchRight, {10, 20, 205, 30}},
      {kStretchLeft | kStretchRight, {100, 20, 205, 30}},
      {kAlignLeft, {100, 20, 130, 30}},
      {kAlignRight, {175, 20, 205, 30}},
      {kStretchLeft | kAlignLeft, {100, 20, 130, 30}},  // the width of before
      {kStretchRight | kAlignRight, {175, 20, 205, 30}},
      {kCenterH, {137, 20, 167, 30}},
      {kStretchTop, {10, 200, 40, 30}},
      {kStretchBottom, {10, 20, 40, 261}},
      {kAlignTop, {10, 200, 40, 210}},
      {kAlignBottom, {10, 251, 40, 261}},
      {kCenterV, {10, 225, 40, 235}},
      {1057, {100, 200, 130, 210}},
      {1288, {10, 20, 205, 261}},
      {1536, {10, 225, 40, 235}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(Sides(Placed(rect, target, row.flags)), Sides(row.placed)) << row.flags;
  EXPECT_EQ(Sides(Placed({0, 0, 10, 10}, {-9, -9, 0, 4}, kCenterH | kCenterV)), std::tuple(-9, -7, 1, 3));
}

TEST(Gaps, GoByTheKindsAndTheFrame) {
  const struct {
    int first, second;
    int modalBelow, paletteBelow, modalBeside, paletteBeside;
  } rows[] = {
      {kTextPushButtonKind, kTextPushButtonKind, 7, 4, 7, 6},
      {kRadioKind, kRadioKind, 5, 4, 7, 4},
      {kCheckBoxKind, kCheckBoxKind, 5, 4, 7, 4},
      {kCheckBoxKind, kRadioKind, 7, 4, 7, 4},
      {kTextEditKind, kOtherEditKind, 7, 4, 7, 4},
      {kTextEditKind, kReadOnlyTextEditKind, 7, 4, 7, 4},
      {kLabelKind, kTextPushButtonKind, 7, 4, 4, 4},
      {kTextPushButtonKind, kLabelKind, 7, 4, 7, 4},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(VerticalGap(ModalDialogMetrics(), row.first, row.second), row.modalBelow);
    EXPECT_EQ(VerticalGap(NonModalDialogMetrics(), row.first, row.second), row.paletteBelow);
    EXPECT_EQ(HorizontalGap(ModalDialogMetrics(), row.first, row.second), row.modalBeside);
    EXPECT_EQ(HorizontalGap(NonModalDialogMetrics(), row.first, row.second), row.paletteBeside);
  }
}

}  // namespace
}  // namespace qRVADM
