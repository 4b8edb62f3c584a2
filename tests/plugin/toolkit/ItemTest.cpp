// What every item offers, on a label.
#include <array>
#include <string>

#include "DialogWorld.h"
#include "Placement.h"
#include "RVADM_Label.h"

namespace qRVADM {
namespace {

using ItemTest = DialogTest;

std::string TextOf(RVADM_Item& item, int size, bool current) {
  std::array<char, 32> buffer{};
  item.GetText(buffer.data(), size, current);
  return buffer.data();
}

std::u16string WideTextOf(RVADM_Item& item, int size, bool current) {
  std::array<std::uint16_t, 32> buffer{};
  item.GetTextW(buffer.data(), size, current);
  return QString::fromUtf16(buffer.data()).toStdU16String();
}

TEST_F(ItemTest, KeepTheTextTheyWereGivenAndTellWhatTheyShow) {
  TestDialog dialog;
  auto* label = new RVADM_Label(&dialog, "Maße", false);
  label->setText("shown");
  EXPECT_EQ(TextOf(*label, 32, false), "Maße");
  EXPECT_EQ(TextOf(*label, 32, true), "shown");
  EXPECT_EQ(TextOf(*label, 4, false), "Ma") << "half a letter is none";
  label->setText("a\U0001F600");
  EXPECT_EQ(TextOf(*label, 5, true), "a");
  EXPECT_EQ(WideTextOf(*label, 3, true), u"a");
  EXPECT_EQ(WideTextOf(*label, 4, true), u"a\U0001F600");
  EXPECT_EQ(WideTextOf(*label, 32, false), u"");
  const std::uint16_t wide[] = {'W', 0xC4, 0};
  label->SetTextW(wide, false);
  EXPECT_EQ(TextOf(*label, 32, true), "WÄ");
  EXPECT_EQ(TextOf(*label, 32, false), "Maße");
}

struct BoundsWatch : RVADM_Label {
  using RVADM_Label::RVADM_Label;
  void Notify(int code) override { codes.push_back(code); }
  std::vector<int> codes;
};

TEST_F(ItemTest, PlacementGoesByItsFlagsInTheirOrder) {
  const struct {
    int flags;
    QRect placed;
  } rows[] = {{kAlignBase, {10, 20, 30, 10}},
              {kStretchLeft | kStretchRight, {100, 20, 105, 10}},
              {kStretchLeft | kAlignLeft, {100, 20, 30, 10}},  // the width of before
              {kAlignRight | kStretchBottom, {175, 20, 30, 241}},
              {kStretchTop | kStretchBottom, {10, 200, 30, 61}},
              {kAlignLeft | kAlignTop, {100, 200, 30, 10}},
              {kCenterH | kAlignBottom, {137, 251, 30, 10}},
              {kCenterV, {10, 225, 30, 10}}};
  for (const auto& row : rows) {
    EXPECT_EQ(ToQRect(Placed({10, 20, 40, 30}, {100, 200, 205, 261}, row.flags)), row.placed) << row.flags;
  }
}

TEST_F(ItemTest, NotifyOfBoundsAndMoveByTheirSides) {
  TestDialog dialog;
  auto* label = new BoundsWatch(&dialog, "x", false);
  label->SetBounds({10, 20, 40, 30});
  label->codes.clear();
  label->SetBounds({10, 20, 40, 30});
  label->SetLeft(50);
  label->SetRight(60);
  label->SetBottom(90);
  label->MoveTo(5, -5, true);
  EXPECT_EQ(label->codes, std::vector<int>(5, kBoundsChanged));
  EXPECT_EQ(label->QLabel::geometry(), QRect(55, 15, 10, 70));

  auto* other = new RVADM_Label(&dialog, "y", false);
  other->SetBounds({0, 0, 8, 6});
  label->SetBounds({100, 100, 120, 110});
  const auto place = [&](void (RVADM_Item::*side)(RVADM_Item*, int, int), int flags, int gap) {
    (label->*side)(other, flags, gap);
    return other->QLabel::pos();
  };
  EXPECT_EQ(place(&RVADM_Item::PlaceBelow, 1025, 3), QPoint(100, 113));
  EXPECT_EQ(place(&RVADM_Item::PlaceAbove, 1026, kDefaultGap), QPoint(112, 87));
  EXPECT_EQ(place(&RVADM_Item::PlaceRightOf, 1536, kDefaultGap), QPoint(124, 102));
  EXPECT_EQ(place(&RVADM_Item::PlaceLeftOf, 1024, 10), QPoint(82, 102));
}

}  // namespace
}  // namespace qRVADM
