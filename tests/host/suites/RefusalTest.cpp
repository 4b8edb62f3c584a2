#include "Refusal.h"

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

TEST_F(RefusalTest, FailsTheCallsOfAnEntryThatItsRulesName) {
  ASSERT_EQ(refusal.add("AI Layer Suite:CountLayers:1"), "");
  ASSERT_EQ(refusal.add("AI Layer Suite:CountLayers:3"), "");
  for (const AIErr code : {kSPCanceledByHostError, kNoErr, kSPCanceledByHostError, kNoErr}) {
    EXPECT_EQ(count(), code);
    AILayerHandle top = nullptr;
    EXPECT_EQ(layers.GetNthLayer(0, &top), kNoErr);
  }
  EXPECT_THAT(refusal.refused(),
              ElementsAre("AI Layer Suite:CountLayers, call 1", "AI Layer Suite:CountLayers, call 3"));
}

TEST_F(RefusalTest, FailsEveryCallOfAnEntryAndDoesNothing) {
  ASSERT_EQ(refusal.add("AI Layer Suite:InsertLayer"), "");
  ASSERT_EQ(refusal.add("AI Swatch Group Suite:NewGroup"), "");
  AILayerHandle layer = nullptr;
  const auto& groups = acquire<AISwatchGroupSuite>(kAISwatchGroupSuite, kAISwatchGroupSuiteVersion);
  for (int call = 0; call < 2; ++call) {
    EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &layer), kSPCanceledByHostError);
    EXPECT_EQ(groups.NewGroup(nullptr, 0, -1), nullptr);
  }
  EXPECT_EQ(document->state().layers.size(), 1U);
  refusal.clear();
  EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &layer), kNoErr);
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

TEST_F(RefusalTest, SaysWhatIsWrongWithARule) {
  const std::pair<const char*, const char*> cases[] = {{"", "no suite \"\""},
                                                       {"AI Art Suite:NewArtt", "no entry \"NewArtt\""},
                                                       {"AI Art Suite:", "no entry \"\""},
                                                       {"AI Tag Suite:Show", "no entry \"Show\""},
                                                       {"AI Art Suite:NewArt:0", "\"0\""},
                                                       {"AI Art Suite:NewArt:", "\"\""},
                                                       {"AI Art Suite:NewArt:3rd", "\"3rd\""},
                                                       {"SP Basic Suite:IsEqual", "no result"}};
  for (const auto& [rule, complaint] : cases) EXPECT_THAT(refusal.add(rule), HasSubstr(complaint)) << rule;
}

}  // namespace
