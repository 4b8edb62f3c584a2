// Paints on a screen.
#include "ColorToRGB.h"

#include <cmath>
#include <limits>

#include "ColorToRGBColor.h"
#include "PaintFixture.h"

namespace qRVADM {
namespace {

constexpr AIReal kNaN = std::numeric_limits<AIReal>::quiet_NaN();
constexpr AIReal kHuge = std::numeric_limits<AIReal>::max();

constexpr AIRGBColor kUntouched{1, 2, 3};

void ExpectComponents(const AIRGBColor& actual, const AIRGBColor& expected, const std::string& where,
                      int tolerance = 0) {
  EXPECT_NEAR(actual.red, expected.red, tolerance) << where;
  EXPECT_NEAR(actual.green, expected.green, tolerance) << where;
  EXPECT_NEAR(actual.blue, expected.blue, tolerance) << where;
}

class ColorToRGBTest : public PaintFixture {
 protected:
  static AIRGBColor Shown(const AIColor& paint, bool ignoreTint = false) {
    AIRGBColor shown = kUntouched;
    EXPECT_EQ(ColorToRGBColor(paint, shown, ignoreTint), kNoErr);
    return shown;
  }
};

TEST_F(ColorToRGBTest, ShowsEachKindOfPaintAndHoldsComponentsInTheirRange) {
  const std::pair<AIColor, AIRGBColor> cases[] = {
      {Paint(kGrayColor, 0.25), {49151, 49151, 49151}},
      {Paint(kGrayColor, -kHuge), {65535, 65535, 65535}},
      {Paint(kFourColor, 0, 1, 0.5, 0), {65535, 0, 32767}},
      {Paint(kFourColor, kHuge, -kHuge, HUGE_VAL, 0), {0, 65535, 0}},
      {Paint(kThreeColor, 1, 0.5, 0.2), {65535, 32767, 13107}},  // without the fraction
      {Paint(kThreeColor, kNaN, HUGE_VAL, -HUGE_VAL), {0, 65535, 0}},
      {Paint(kNoneColor), {65535, 65535, 65535}},
      {Paint(static_cast<AIColorTag>(99)), {0, 0, 0}}};
  for (const auto& c : cases) ExpectComponents(Shown(c.first), c.second, std::to_string(&c - cases));
  RGBSample rgb{};
  EXPECT_EQ(ColorToRGB(Paint(kThreeColor, 1.5, -2, 0), rgb, false), kNoErr);
  EXPECT_EQ(rgb, (RGBSample{1.5F, -2, 0})) << "as they stand";
}

TEST_F(ColorToRGBTest, TintsWeakenInksOnly) {
  const AICustomColor definition = Definition(kCustomFourColor, 0, 1, 0, 0);
  const AIColor ink = CustomPaint(definition, 0.5);
  ExpectComponents(Shown(ink), {65535, 32767, 65535}, "half strength");
  ExpectComponents(Shown(ink, true), {65535, 0, 65535}, "full strength");
  AIRGBColor shown = kUntouched;
  EXPECT_NE(CustomColorToRGBColor(Definition(static_cast<AICustomColorTag>(3)), shown), kNoErr);
  ExpectComponents(shown, kUntouched, "an unknown kind");
  EXPECT_EQ(CustomColorToRGBColor(definition, shown), kNoErr);
  ExpectComponents(shown, {65535, 0, 65535}, "a definition");
  ExpectComponents(Shown(CustomPaint(Definition(kCustomThreeColor, 1, 0, 0.5), 0.5)), {65535, 0, 32767},
                   "RGB");
  const AIColor lab = CustomPaint(Definition(kCustomLabColor, 54.29, 80.81, 69.89), 0.5);
  ExpectComponents(Shown(lab), {65535, 0, 0}, "the red of sRGB", 600);
}

}  // namespace
}  // namespace qRVADM
