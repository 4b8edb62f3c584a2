#include <cmath>

#include "AICustomColor.h"
#include "AISwatchGroup.h"
#include "HostFixture.h"

namespace {

class SwatchSuiteTest : public HostFixture {
 protected:
  static AICustomColor magenta() {
    AICustomColor color{};
    color.kind = kCustomFourColor;
    color.c.f = {0, 1, 0, 0};
    color.flag = kCustomSpotColor;
    return color;
  }
  AIColor customColor(const char* name) {
    const AICustomColor definition = magenta();
    AIColor color{};
    color.kind = kCustomColor;
    EXPECT_EQ(colors.NewCustomColor(&definition, text(name), &color.c.c.color), kNoErr);
    return color;
  }

  const AICustomColorSuite& colors = ACQUIRE(AICustomColorSuite);
  const AISwatchGroupSuite& groups = ACQUIRE(AISwatchGroupSuite);
};

TEST_F(SwatchSuiteTest, CustomColoursHaveNamesOfTheirOwn) {
  const AIColor cut = customColor("Cut");
  const AICustomColor definition = magenta();
  AICustomColorHandle second = nullptr;
  EXPECT_EQ(colors.NewCustomColor(&definition, text("Cut"), &second), kBadParameterErr);
  AICustomColor noNumber = definition, noKind = definition;
  noNumber.c.f.black = std::nan("");
  noKind.kind = static_cast<AICustomColorTag>(3);
  EXPECT_TRUE(each(kBadParameterErr, colors.NewCustomColor(&noNumber, text("a"), &second),
                   colors.NewCustomColor(&noKind, text("a"), &second)));
  EXPECT_EQ(second, nullptr);
  EXPECT_EQ(colors.NewCustomColor(&definition, text("cut"), &second), kNoErr);
  AICustomColor kept{};
  EXPECT_EQ(colors.GetCustomColor(cut.c.c.color, &kept), kNoErr);
  EXPECT_EQ(kept.c.f.magenta, 1);
  EXPECT_EQ(kept.flag, kCustomSpotColor);
}

TEST_F(SwatchSuiteTest, ACustomColourIsValidInItsOwnDocumentAlone) {
  const AIColor color = customColor("Cut"), grey{};
  const auto isValid = [&](AICustomColorHandle asked) {
    AIBoolean valid = 7;
    EXPECT_EQ(colors.IsValid(asked, &valid), kNoErr);
    return valid;
  };
  EXPECT_EQ(isValid(color.c.c.color), 1);
  EXPECT_EQ(isValid(nullptr), 0);
  host.documents().open(makeDocument(), "other");
  EXPECT_EQ(isValid(color.c.c.color), 0);
  EXPECT_EQ(colors.IsValid(color.c.c.color, nullptr), kBadParameterErr);
  const AISwatchGroupRef group = groups.NewGroup(nullptr, 0, -1);
  EXPECT_EQ(groups.AddSwatch(group, &color, 0), nullptr);
  EXPECT_EQ(groups.AddSwatch(group, &grey, 1), nullptr) << "behind the end";
}

}  // namespace
