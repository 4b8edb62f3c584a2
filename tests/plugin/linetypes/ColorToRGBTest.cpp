// Paints on a screen.
#include "ColorToRGB.h"

#include <limits>

#include "ColorToRGBColor.h"
#include "LineTypeDisplayColor.h"
#include "PaintFixture.h"

namespace Vandrell::Corvane {
namespace {

constexpr AIReal kNaN = std::numeric_limits<AIReal>::quiet_NaN();
constexpr AIReal kInfinity = std::numeric_limits<AIReal>::infinity();
constexpr AIReal kHuge = std::numeric_limits<AIReal>::max();

constexpr AIRGBColor kUntouched{1, 2, 3};

void ExpectComponents(const AIRGBColor& actual, const AIRGBColor& expected, int tolerance,
                      const std::string& where) {
  EXPECT_NEAR(actual.red, expected.red, tolerance) << where;
  EXPECT_NEAR(actual.green, expected.green, tolerance) << where;
  EXPECT_NEAR(actual.blue, expected.blue, tolerance) << where;
}

class ColorToRGBTest : public PaintFixture {
 protected:
  AIRGBColor Shown(const AIColor& paint, bool ignoreTint = false) {
    AIRGBColor shown = kUntouched;
    EXPECT_EQ(ColorToRGBColor(paint, shown, ignoreTint), kNoErr);
    return shown;
  }
  static LineType TypeOf(const AICustomColor& definition) {
    LineType type;
    type.isCustomDataModel = true;
    type.customColor = definition;
    return type;
  }
};

TEST_F(ColorToRGBTest, ShowsEachKindOfPaint) {
  const struct {
    AIColor paint;
    AIRGBColor expected;
  } cases[] = {
      {Paint(kGrayColor, 0), {65535, 65535, 65535}},
      {Paint(kGrayColor, 1), {0, 0, 0}},
      {Paint(kGrayColor, 0.25), {49151, 49151, 49151}},
      {Paint(kFourColor, 0, 1, 0.5, 0), {65535, 0, 32767}},
      {Paint(kFourColor, 0, 0, 0, 0.5), {32767, 32767, 32767}},
      {Paint(kThreeColor, 1, 0.5, 0.2), {65535, 32767, 13107}},  // without the fraction
      {Paint(kNoneColor), {65535, 65535, 65535}},
      {Paint(kPattern), {0, 0, 0}},
      {Paint(kGradient), {0, 0, 0}},
      {Paint(static_cast<AIColorTag>(99)), {0, 0, 0}},
  };
  for (const auto& c : cases) ExpectComponents(Shown(c.paint), c.expected, 0, std::to_string(c.paint.kind));
}

TEST_F(ColorToRGBTest, TintsWeakenInksOnly) {
  const AIColor ink = CustomPaint(Definition(kCustomFourColor, 0, 1, 0, 0), 0.5);
  ExpectComponents(Shown(ink), {65535, 32767, 65535}, 0, "half strength");
  ExpectComponents(Shown(ink, true), {65535, 0, 65535}, 0, "full strength");
  const AIColor light = CustomPaint(Definition(kCustomThreeColor, 1, 0, 0.5), 0.5);
  ExpectComponents(Shown(light), {65535, 0, 32767}, 0, "RGB");
  const AIColor lab = CustomPaint(Definition(kCustomLabColor, 54.29, 80.81, 69.89), 0.5);
  ExpectComponents(Shown(lab), {65535, 0, 0}, 600, "the red of sRGB");
}

TEST_F(ColorToRGBTest, DefinitionsShowInFullStrength) {
  AIRGBColor shown = kUntouched;
  EXPECT_EQ(CustomColorToRGBColor(Definition(kCustomFourColor, 1, 0, 0, 0.5), shown), kNoErr);
  ExpectComponents(shown, {0, 32767, 32767}, 0, "CMYK");
  EXPECT_EQ(CustomColorToRGBColor(Definition(kCustomThreeColor, 0.5, 1, 0), shown), kNoErr);
  ExpectComponents(shown, {32767, 65535, 0}, 0, "RGB");
  EXPECT_EQ(CustomColorToRGBColor(Definition(kCustomLabColor, 100), shown), kNoErr);
  ExpectComponents(shown, {65535, 65535, 65535}, 0, "Lab");
  shown = kUntouched;
  EXPECT_NE(CustomColorToRGBColor(Definition(static_cast<AICustomColorTag>(3)), shown), kNoErr);
  ExpectComponents(shown, kUntouched, 0, "unknown kind");
}

TEST_F(ColorToRGBTest, FailuresLeaveTheColorAlone) {
  const AIColor known = CustomPaint(Definition(kCustomFourColor));
  AIColor stale = known;
  stale.c.c.color = reinterpret_cast<AICustomColorHandle>(std::uintptr_t{12345});
  const struct {
    AIColor paint;
    const char* refuse;
    AIErr code;
  } cases[] = {
      {Paint(kCustomColor), "", ErrorCode("!IMP")},
      {stale, "", ErrorCode("!IMP")},
      {CustomPaint(Definition(static_cast<AICustomColorTag>(8))), "", ErrorCode("!IMP")},
      {known, "AI Custom Color Suite:GetCustomColor", ErrorCode("!IMP")},
      {known, "AI Color Conversion Suite:ConvertSample", kSPCanceledByHostError},
      {Paint(kGrayColor), "AI Color Conversion Suite:ConvertSample", kSPCanceledByHostError},
      {Paint(kFourColor, 0, 0, kNaN), "", kBadParameterErr},
      {Paint(kGrayColor, kNaN), "", kBadParameterErr},
      {CustomPaint(Definition(kCustomFourColor), kNaN), "", kBadParameterErr},
      {CustomPaint(Definition(kCustomLabColor, 0, kNaN)), "", kBadParameterErr},
  };
  for (const auto& c : cases) {
    const std::string where = std::to_string(&c - cases);
    if (*c.refuse != '\0') {
      ASSERT_EQ(host.refusal().add(c.refuse), "");
    }
    RGBSample rgb{7, 7, 7};
    EXPECT_EQ(ColorToRGB(c.paint, rgb, false), c.code) << where;
    EXPECT_EQ(rgb, (RGBSample{7, 7, 7})) << where;
    AIRGBColor shown = kUntouched;
    EXPECT_EQ(ColorToRGBColor(c.paint, shown, false), c.code) << where;
    EXPECT_EQ(ColorToGamutRGBColor(c.paint, shown), c.code) << where;
    ExpectComponents(shown, kUntouched, 0, where);
    host.refusal().clear();
  }
}

TEST_F(ColorToRGBTest, ComponentsBeyondTheirRangeAreHeld) {
  ExpectComponents(Shown(Paint(kThreeColor, kNaN, kInfinity, -kInfinity)), {0, 65535, 0}, 0, "not finite");
  ExpectComponents(Shown(Paint(kThreeColor, kHuge, -kHuge, 1.5)), {65535, 0, 65535}, 0, "huge");
  ExpectComponents(Shown(Paint(kFourColor, kHuge, -kHuge, kInfinity, 0)), {0, 65535, 0}, 0, "inks");
  ExpectComponents(Shown(Paint(kGrayColor, -kHuge)), {65535, 65535, 65535}, 0, "gray");
  RGBSample rgb{};
  EXPECT_EQ(ColorToRGB(Paint(kThreeColor, 1.5, -2, 0), rgb, false), kNoErr);
  EXPECT_EQ(rgb, (RGBSample{1.5F, -2, 0})) << "as they stand";
}

// Where a colour can't be printed is only to be seen with a profile: here the round trip itself is told
// by refusing its steps.
TEST_F(ColorToRGBTest, RGBGoesThroughInksForTheGamut) {
  const struct {
    AIColor paint;
    int conversions;
  } cases[] = {
      {Paint(kThreeColor, 1, 0.5, 0), 2},
      {CustomPaint(Definition(kCustomThreeColor, 1, 0.5, 0), 0.5), 2},
      {CustomPaint(Definition(kCustomFourColor, 0, 0.5, 1, 0)), 1},
      {Paint(kFourColor, 0, 0.5, 1, 0), 1},
      {Paint(kNoneColor), 0},
  };
  for (const auto& c : cases) {
    const std::string where = std::to_string(&c - cases);
    for (int call = 1; call <= c.conversions + 1; ++call) {
      ASSERT_EQ(host.refusal().add("AI Color Conversion Suite:ConvertSample:" + std::to_string(call)), "");
      AIRGBColor shown = kUntouched;
      const AIErr error = ColorToGamutRGBColor(c.paint, shown);
      EXPECT_EQ(error != kNoErr, call <= c.conversions) << where << ", call " << call;
      host.refusal().clear();
      ExpectComponents(shown, error != kNoErr ? kUntouched : Shown(c.paint), 2, where);
    }
  }
}

TEST_F(ColorToRGBTest, LineTypesShowAsPaints) {
  LineType plain;
  plain.color = Paint(kFourColor, 0.1, 0.2, 0.3, 0.4);
  EXPECT_EQ(LineTypeDisplayColor(plain).kind, kFourColor);
  EXPECT_EQ(LineTypeDisplayColor(plain).c.f.black, 0.4);

  const AIColor inks = LineTypeDisplayColor(TypeOf(Definition(kCustomFourColor, 0.1, 0.2, 0.3, 0.4)));
  EXPECT_EQ(inks.kind, kFourColor);
  EXPECT_EQ(inks.c.f.cyan, 0.1);
  EXPECT_EQ(inks.c.f.black, 0.4);

  const AIColor light = LineTypeDisplayColor(TypeOf(Definition(kCustomThreeColor, 0.1, 0.2, 0.3)));
  EXPECT_EQ(light.kind, kThreeColor);
  EXPECT_EQ(light.c.rgb.blue, 0.3);

  const AIColor lab = LineTypeDisplayColor(TypeOf(Definition(kCustomLabColor, 54.29, 80.81, 69.89)));
  EXPECT_EQ(lab.kind, kThreeColor);
  EXPECT_NEAR(lab.c.rgb.red, 1, 0.005);
  EXPECT_NEAR(lab.c.rgb.green, 0, 0.02);
  EXPECT_NEAR(lab.c.rgb.blue, 0, 0.01);

  EXPECT_EQ(LineTypeDisplayColor(TypeOf(Definition(static_cast<AICustomColorTag>(3)))).kind, kNoneColor);
  ASSERT_EQ(host.refusal().add("AI Color Conversion Suite:ConvertSample"), "");
  EXPECT_EQ(LineTypeDisplayColor(TypeOf(Definition(kCustomLabColor, 50))).kind, kNoneColor);
}

}  // namespace
}  // namespace Vandrell::Corvane
