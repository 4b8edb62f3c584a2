#include "Refusal.h"

#include "AIRealMath.h"
#include "AISwatchGroup.h"
#include "HostFixture.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

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
  refusal.armNth(1);
  EXPECT_EQ(host.basic()->AcquireSuite(kAILayerSuite, kAILayerSuiteVersion, &table), kSPCanceledByHostError);
  EXPECT_EQ(table, nullptr);
  EXPECT_EQ(host.basic()->AcquireSuite(kAILayerSuite, kAILayerSuiteVersion, &table), kSPNoError);
}

TEST_F(RefusalTest, FailsTheCallsOfAnEntryThatItsRulesNameAndDoesNothing) {
  for (const char* rule : {"AI Layer Suite:CountLayers:1", "AI Layer Suite:CountLayers:3",
                           "AI Layer Suite:InsertLayer", "AI Swatch Group Suite:NewGroup"}) {
    ASSERT_EQ(refusal.add(rule), "");
  }
  AILayerHandle layer = nullptr;
  const auto& groups = ACQUIRE(AISwatchGroupSuite);
  for (const AIErr code : {kSPCanceledByHostError, kNoErr, kSPCanceledByHostError, kNoErr}) {
    EXPECT_EQ(count(), code);
    EXPECT_EQ(layers.GetNthLayer(0, &layer), kNoErr);
  }
  EXPECT_THAT(refusal.refused(),
              ElementsAre("AI Layer Suite:CountLayers, call 1", "AI Layer Suite:CountLayers, call 3"));
  for (int call = 0; call < 2; ++call) {
    EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &layer), kSPCanceledByHostError);
    EXPECT_EQ(groups.NewGroup(nullptr, 0, -1), nullptr);
  }
  EXPECT_EQ(document->state().layers.size(), 1U);
}

TEST_F(RefusalTest, FailsTheNthCallOfTheRun) {
  const std::uint64_t before = refusal.callCount();
  refusal.armNth(3);
  const AIRealRect rect{};
  const auto& math = ACQUIRE(AIRealMathSuite);              // call 1
  EXPECT_EQ(count(), kNoErr);                               // call 2
  EXPECT_EQ(math.AIRealRectInAIRealRect(&rect, &rect), 1);  // neither of these can tell a failure
  EXPECT_EQ(host.basic()->IsEqual("a", "a"), 1);
  EXPECT_EQ(refusal.callCount(), before + 2);
  EXPECT_EQ(count(), kSPCanceledByHostError);
  EXPECT_EQ(count(), kNoErr);
  EXPECT_THAT(refusal.refused(),
              ElementsAre("AI Layer Suite:CountLayers, call " + std::to_string(before + 3) + " of the run"));
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
