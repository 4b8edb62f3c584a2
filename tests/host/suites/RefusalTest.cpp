#include "Refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "AIHitTest.h"
#include "AIRealMath.h"
#include "AISwatchGroup.h"
#include "HostFixture.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class RefusalTest : public HostFixture {
 protected:
  AIErr count() {
    std::int32_t number = 0;
    return layers.CountLayers(&number);
  }

  host::Refusal& refusal = host.refusal();
};

TEST_F(RefusalTest, WithholdsASuite) {
  ASSERT_EQ(refusal.add("AI Layer Suite"), "");
  const void* table = this;
  EXPECT_EQ(host.basic()->AcquireSuite(kAILayerSuite, kAILayerSuiteVersion, &table), kSPSuiteNotFoundError);
  EXPECT_EQ(table, nullptr);
  EXPECT_EQ(host.basic()->AcquireSuite(kAIArtSuite, kAIArtSuiteVersion, &table), kSPNoError);
  EXPECT_THAT(refusal.refused(), ElementsAre("AI Layer Suite, withheld"));
  refusal.clear();
  EXPECT_EQ(host.basic()->AcquireSuite(kAILayerSuite, kAILayerSuiteVersion, &table), kSPNoError);
}

TEST_F(RefusalTest, FailsOneCallOfAnEntry) {
  ASSERT_EQ(refusal.add("AI Art Suite:NewArt:3"), "");
  AIArtHandle made = nullptr;
  for (int call = 1; call <= 4; ++call) {
    const AIErr code = art.NewArt(kPathArt, kPlaceAboveAll, nullptr, &made);
    EXPECT_EQ(code, call == 3 ? kSPCanceledByHostError : kNoErr) << call;
    EXPECT_EQ(count(), kNoErr);
  }
  EXPECT_THAT(refusal.refused(), ElementsAre("AI Art Suite:NewArt, call 3"));
}

TEST_F(RefusalTest, FailsEveryCallOfAnEntryAndDoesNothing) {
  ASSERT_EQ(refusal.add("AI Layer Suite:InsertLayer"), "");
  AILayerHandle layer = nullptr;
  EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &layer), kSPCanceledByHostError);
  EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &layer), kSPCanceledByHostError);
  EXPECT_EQ(document->state().layers.size(), 1U);
  EXPECT_EQ(refusal.refused().size(), 2U);
  refusal.clear();
  EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &layer), kNoErr);
}

TEST_F(RefusalTest, EntriesThatGivePointersGiveNull) {
  const auto& groups = acquire<AISwatchGroupSuite>(kAISwatchGroupSuite, kAISwatchGroupSuiteVersion);
  ASSERT_EQ(refusal.add("AI Swatch Group Suite:NewGroup:1"), "");
  EXPECT_EQ(groups.NewGroup(nullptr, 0, -1), nullptr);
  EXPECT_NE(groups.NewGroup(nullptr, 0, -1), nullptr);
}

TEST_F(RefusalTest, FailsTheNthCallOfTheRun) {
  const std::uint64_t before = refusal.callCount();
  refusal.armNth(3);
  const AIRealRect rect{};
  const auto& math = acquire<AIRealMathSuite>(kAIRealMathSuite, kAIRealMathSuiteVersion);  // call 1
  EXPECT_EQ(count(), kNoErr);                                                              // call 2
  EXPECT_EQ(math.AIRealRectInAIRealRect(&rect, &rect), 1);  // neither of these can tell a failure
  EXPECT_EQ(host.basic()->IsEqual("a", "a"), 1);
  EXPECT_EQ(refusal.callCount(), before + 2);
  EXPECT_EQ(count(), kSPCanceledByHostError);
  EXPECT_EQ(count(), kNoErr);
  EXPECT_THAT(refusal.refused(),
              ElementsAre("AI Layer Suite:CountLayers, call " + std::to_string(before + 3) + " of the run"));
}

TEST_F(RefusalTest, AcquisitionsAreCallsToo) {
  refusal.armNth(1);
  const void* table = this;
  EXPECT_EQ(host.basic()->AcquireSuite(kAIArtSuite, kAIArtSuiteVersion, &table), kSPCanceledByHostError);
  EXPECT_EQ(table, nullptr);
  ASSERT_EQ(refusal.add("SP Basic Suite:ReleaseSuite:1"), "");
  EXPECT_EQ(host.basic()->ReleaseSuite(kAIArtSuite, kAIArtSuiteVersion), kSPCanceledByHostError);
  EXPECT_EQ(host.basic()->ReleaseSuite(kAIArtSuite, kAIArtSuiteVersion), kSPNoError);
}

TEST_F(RefusalTest, RulesAddUp) {
  ASSERT_EQ(refusal.add("AI Layer Suite:CountLayers:1"), "");
  ASSERT_EQ(refusal.add("AI Layer Suite:CountLayers:3"), "");
  const AIErr expected[] = {kSPCanceledByHostError, kNoErr, kSPCanceledByHostError, kNoErr};
  for (const AIErr code : expected) EXPECT_EQ(count(), code);
}

TEST_F(RefusalTest, SaysWhatIsWrongWithARule) {
  const struct {
    const char* rule;
    const char* complaint;
  } cases[] = {
      {"", "no suite \"\""},
      {"AI Lair Suite", "no suite \"AI Lair Suite\""},
      {"AI Art Suite:NewArtt", "no entry \"NewArtt\""},
      {"AI Art Suite:", "no entry \"\""},
      {"AI Panel Suite:Show", "no entry \"Show\""},
      {"AI Art Suite:NewArt:0", "\"0\""},
      {"AI Art Suite:NewArt:", "\"\""},
      {"AI Art Suite:NewArt:3rd", "\"3rd\""},
      {"AI Art Suite:NewArt:-1", "\"-1\""},
      {"SP Basic Suite:IsEqual", "no result"},
      {"AI Runtime Suite:IsEndingWithoutSaving:1", "no result"},
  };
  for (const auto& c : cases) EXPECT_THAT(refusal.add(c.rule), HasSubstr(c.complaint)) << c.rule;
  EXPECT_EQ(count(), kNoErr);
  EXPECT_THAT(refusal.refused(), IsEmpty());
}

}  // namespace
