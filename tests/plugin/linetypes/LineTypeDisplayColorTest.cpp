#include "LineTypeDisplayColor.h"

#include "PaintFixture.h"

namespace Vandrell::Corvane {
namespace {

using LineTypeDisplayColorTest = PaintFixture;

AIColor Displayed(const AICustomColor& definition) {
  LineType type;
  type.isCustomDataModel = true;
  type.customColor = definition;
  return LineTypeDisplayColor(type);
}

TEST_F(LineTypeDisplayColorTest, LineTypesShowAsPaints) {
  LineType plain;
  plain.color = Paint(kFourColor, 0, 1, 1, 0);
  EXPECT_EQ(LineTypeDisplayColor(plain).kind, kFourColor);
  const AIColor inks = Displayed(Definition(kCustomFourColor, 0, 0.25, 1, 0));
  EXPECT_EQ(inks.kind, kFourColor);
  EXPECT_EQ(inks.c.f.magenta, 0.25);
  const AIColor rgb = Displayed(Definition(kCustomThreeColor, 1, 0.25, 0));
  EXPECT_EQ(rgb.kind, kThreeColor);
  EXPECT_EQ(rgb.c.rgb.green, 0.25);
  const AIColor lab = Displayed(Definition(kCustomLabColor, 54.29, 80.81, 69.89));
  EXPECT_EQ(lab.kind, kThreeColor);
  EXPECT_NEAR(lab.c.rgb.red, 1, 0.02) << "the red of sRGB";
  EXPECT_NEAR(lab.c.rgb.green, 0, 0.02);
  EXPECT_EQ(Displayed(Definition(static_cast<AICustomColorTag>(3))).kind, kNoneColor);
  ASSERT_EQ(host.refusal().add("AI Color Conversion Suite:ConvertSample"), "");
  EXPECT_EQ(Displayed(Definition(kCustomLabColor, 50)).kind, kNoneColor);
}

}  // namespace
}  // namespace Vandrell::Corvane
