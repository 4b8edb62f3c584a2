#include <cmath>
#include <tuple>

#include "AICustomColor.h"
#include "AISwatchGroup.h"
#include "AISwatchList.h"
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
  std::string nameOf(AISwatchRef swatch) {
    const AIUnicodeStringHandle name = text();
    EXPECT_EQ(swatches.GetSwatchName(swatch, name), kNoErr);
    return read(name);
  }

  const AICustomColorSuite& colors = ACQUIRE(AICustomColorSuite);
  const AISwatchListSuite& swatches = ACQUIRE(AISwatchListSuite);
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

TEST_F(SwatchSuiteTest, GroupsAreFilledInOrderAndSearchedByNameAndKind) {
  const AISwatchGroupRef group = groups.NewGroup(nullptr, kAISwatchGroupKindPlain, -1);
  EXPECT_EQ(groups.GetGroupByName(nullptr, text("Lines")), nullptr);
  EXPECT_EQ(groups.SetGroupName(group, text("Lines")), kNoErr);
  EXPECT_EQ(groups.GetGroupByName(nullptr, text("Lines")), group);
  const AIColor grey{}, color = customColor("Cut");
  const AISwatchRef plain = groups.AddSwatch(group, &grey, 0), custom = groups.AddSwatch(group, &color, 0);
  EXPECT_EQ(nameOf(plain), "");
  EXPECT_EQ(nameOf(custom), "Cut");
  ASSERT_EQ(swatches.SetSwatchName(plain, text("Cut")), kNoErr);
  const AISwatchRef expected[] = {nullptr, plain, custom, nullptr};
  for (std::int32_t i = -1; i < 3; ++i) EXPECT_EQ(swatches.GetNthSwatch(nullptr, i), expected[i + 1]) << i;
  const std::tuple<const char*, AIColorTag, AISwatchRef> searches[] = {{"Cut", kCustomColor, custom},
                                                                       {"Cut", kGrayColor, plain},
                                                                       {"Cut", kFourColor, nullptr},
                                                                       {"cut", kCustomColor, nullptr}};
  for (const auto& [name, kind, found] : searches) {
    EXPECT_EQ(swatches.GetSwatchByNameAndType(nullptr, text(name), kind), found) << name << kind;
  }
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
