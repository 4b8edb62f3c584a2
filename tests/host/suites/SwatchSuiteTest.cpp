#include <cmath>

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

  const AICustomColorSuite& colors =
      acquire<AICustomColorSuite>(kAICustomColorSuite, kAICustomColorSuiteVersion);
  const AISwatchListSuite& swatches =
      acquire<AISwatchListSuite>(kAISwatchListSuite, kAISwatchListSuiteVersion);
  const AISwatchGroupSuite& groups =
      acquire<AISwatchGroupSuite>(kAISwatchGroupSuite, kAISwatchGroupSuiteVersion);
};

TEST_F(SwatchSuiteTest, CustomColoursHaveNamesOfTheirOwn) {
  const AIColor cut = customColor("Cut");
  const AICustomColor definition = magenta();
  AICustomColorHandle second = nullptr;
  EXPECT_EQ(colors.NewCustomColor(&definition, text("Cut"), &second), kBadParameterErr);
  EXPECT_EQ(second, nullptr);
  EXPECT_EQ(colors.NewCustomColor(&definition, text("cut"), &second), kNoErr);
  AICustomColor kept{};
  EXPECT_EQ(colors.GetCustomColor(cut.c.c.color, &kept), kNoErr);
  EXPECT_EQ(kept.c.f.magenta, 1);
  EXPECT_EQ(kept.flag, kCustomSpotColor);
}

TEST_F(SwatchSuiteTest, ACustomColourIsValidInItsOwnDocumentWhileItIsThere) {
  const AICustomColorHandle cut = customColor("Cut").c.c.color;
  const auto isValid = [&](AICustomColorHandle color) {
    AIBoolean valid = 7;
    EXPECT_EQ(colors.IsValid(color, &valid), kNoErr);
    return valid;
  };
  EXPECT_EQ(isValid(cut), 1);
  EXPECT_EQ(isValid(nullptr), 0);
  host.documents().open(makeDocument(), "other");
  EXPECT_EQ(isValid(cut), 0);
  EXPECT_EQ(colors.IsValid(cut, nullptr), kBadParameterErr);
}

TEST_F(SwatchSuiteTest, CustomColoursNeedADefinitionThatCanBeShown) {
  AICustomColor noNumber = magenta(), noKind = magenta();
  noNumber.c.f.black = std::nan("");
  noKind.kind = static_cast<AICustomColorTag>(3);
  AICustomColorHandle color = nullptr;
  EXPECT_EQ(colors.NewCustomColor(&noNumber, text("a"), &color), kBadParameterErr);
  EXPECT_EQ(colors.NewCustomColor(&noKind, text("a"), &color), kBadParameterErr);
}

TEST_F(SwatchSuiteTest, NewGroupsGoWhereTold) {
  const AISwatchGroupRef last = groups.NewGroup(nullptr, 0, -1);
  const AISwatchGroupRef first = groups.NewGroup(nullptr, 0, 0);
  const AISwatchGroupRef middle = groups.NewGroup(nullptr, 0, 1);
  const auto& order = document->state().swatchGroups;
  const auto id = [&](AISwatchGroupRef group) {
    return host::idOfHandle(group, host::HandleKind::SwatchGroup, document->serial());
  };
  EXPECT_EQ(order, (std::vector<host::SwatchGroupId>{id(first), id(middle), id(last)}));
  EXPECT_EQ(groups.NewGroup(nullptr, 0, 4), nullptr);
  EXPECT_EQ(groups.NewGroup(nullptr, 0, -2), nullptr);
}

TEST_F(SwatchSuiteTest, GroupsAreFoundByNameAndFilledInOrder) {
  const AISwatchGroupRef group = groups.NewGroup(nullptr, kAISwatchGroupKindPlain, -1);
  EXPECT_EQ(groups.GetGroupByName(nullptr, text("Cut Line Types")), nullptr);
  EXPECT_EQ(groups.SetGroupName(group, text("Cut Line Types")), kNoErr);
  EXPECT_EQ(groups.GetGroupByName(nullptr, text("Cut Line Types")), group);
  const AIColor cut = customColor("Cut"), grey{};
  const AISwatchRef first = groups.AddSwatch(group, &cut, 0);
  const AISwatchRef second = groups.AddSwatch(group, &grey, 0);
  EXPECT_EQ(nameOf(first), "Cut");
  EXPECT_EQ(nameOf(second), "");
  const AISwatchRef expected[] = {nullptr, first, second, nullptr};
  for (std::int32_t i = -1; i < 3; ++i) EXPECT_EQ(swatches.GetNthSwatch(nullptr, i), expected[i + 1]) << i;
}

TEST_F(SwatchSuiteTest, SwatchesAreFoundByNameAndKind) {
  const AISwatchGroupRef group = groups.NewGroup(nullptr, 0, -1);
  const AIColor grey{}, color = customColor("Cut");
  const AISwatchRef plain = groups.AddSwatch(group, &grey, 0);
  ASSERT_EQ(swatches.SetSwatchName(plain, text("Cut")), kNoErr);
  const AISwatchRef custom = groups.AddSwatch(group, &color, 0);
  EXPECT_EQ(swatches.GetSwatchByNameAndType(nullptr, text("Cut"), kCustomColor), custom);
  EXPECT_EQ(swatches.GetSwatchByNameAndType(nullptr, text("Cut"), kGrayColor), plain);
  EXPECT_EQ(swatches.GetSwatchByNameAndType(nullptr, text("Cut"), kFourColor), nullptr);
  EXPECT_EQ(swatches.GetSwatchByNameAndType(nullptr, text("cut"), kCustomColor), nullptr);
  AIColor found{};
  EXPECT_EQ(swatches.GetAIColor(custom, &found), kNoErr);
  EXPECT_EQ(found.c.c.color, color.c.c.color);
}

TEST_F(SwatchSuiteTest, OnlyTheListOfTheDocumentIsKnown) {
  const auto other = reinterpret_cast<AISwatchListRef>(this);
  std::int32_t number = 0;
  EXPECT_EQ(swatches.CountSwatches(other, &number), kBadParameterErr);
  EXPECT_EQ(swatches.GetNthSwatch(other, 0), nullptr);
  EXPECT_EQ(groups.NewGroup(other, 0, -1), nullptr);
  host.documents().close(*document);
  EXPECT_EQ(swatches.CountSwatches(nullptr, &number), kNoDocumentErr);
  EXPECT_EQ(groups.NewGroup(nullptr, 0, -1), nullptr);
}

TEST_F(SwatchSuiteTest, AddSwatchRefusesColoursOfOtherDocuments) {
  const AIColor color = customColor("Cut");
  const auto other = makeDocument();
  host.documents().open(other, "other");
  const AISwatchGroupRef group = groups.NewGroup(nullptr, 0, -1);
  EXPECT_EQ(groups.AddSwatch(group, &color, 0), nullptr);
  const AIColor grey{};
  EXPECT_EQ(groups.AddSwatch(group, &grey, 1), nullptr);
  EXPECT_NE(groups.AddSwatch(group, &grey, 0), nullptr);
}

}  // namespace
