// A line type and its swatch.
#include "LineTypeSwatch.h"

#include "FramePlugin.h"

namespace Vandrell::Corvane {
namespace {

constexpr char kGroup[] = "Cut Line Types";

class LineTypeSwatch : public FrameTest {
 protected:
  static LineType Magenta(const char* name) {
    LineType type;
    type.isCustomDataModel = true;
    type.name = ai::UnicodeString(name);
    type.customColor = AICustomColor();
    type.customColor.kind = kCustomFourColor;
    type.customColor.c.f = {0, 1, 0, 0};
    type.customColor.flag = kCustomSpotColor;
    return type;
  }

  host::Document& document = OpenDocument({"Layer"});
};

TEST_F(LineTypeSwatch, ANewSwatchGoesIntoItsGroupAndIsFoundAgain) {
  LineType type = Magenta("Kiss Cut");
  const AISwatchRef swatch = EnsureLineTypeSwatch(type, kGroup);
  ASSERT_NE(swatch, nullptr);
  EXPECT_FALSE(type.isCustomDataModel);
  EXPECT_EQ(type.color.kind, kCustomColor);
  EXPECT_EQ(type.color.c.c.tint, 0);
  const host::CustomColor* color = document.customColor(document.customColorByName("Kiss Cut"));
  ASSERT_NE(color, nullptr);
  EXPECT_EQ(color->definition.c.f.magenta, 1);
  ASSERT_EQ(document.state().swatchGroups.size(), 1U);
  EXPECT_EQ(document.swatchGroup(document.state().swatchGroups[0])->name, kGroup);

  LineType again = Magenta("Kiss Cut");
  EXPECT_EQ(EnsureLineTypeSwatch(again, kGroup), swatch);
  EXPECT_EQ(again.color.c.c.color, type.color.c.c.color);
  LineType other = Magenta("Through Cut");
  EXPECT_NE(EnsureLineTypeSwatch(other, kGroup), nullptr);
  EXPECT_EQ(document.state().swatches.size(), 2U);
  EXPECT_EQ(document.state().swatchGroups.size(), 1U) << "one group for all";
}

TEST_F(LineTypeSwatch, WhatTheDocumentHasWins) {
  LineType first = Magenta("Crease");
  const AISwatchRef swatch = EnsureLineTypeSwatch(first, "Somewhere else");
  LineType type;
  type.name = ai::UnicodeString("Crease");
  type.color.kind = kThreeColor;
  EXPECT_EQ(EnsureLineTypeSwatch(type, kGroup), swatch);
  EXPECT_EQ(type.color.kind, kCustomColor);
  EXPECT_EQ(document.state().swatchGroups.size(), 1U) << "no group is made for it";
}

}  // namespace
}  // namespace Vandrell::Corvane
