// Contexts as a plug-in has them.
#include "AIContext.h"
#include "HostFixture.h"
#include "UndoStep.h"

namespace {

class ContextSuiteTest : public HostFixture {
 protected:
  const AIContextSuite& contexts = ACQUIRE(AIContextSuite);
};

TEST_F(ContextSuiteTest, AContextIsOneUndoStepWithAllThatWasPushedWithinIt) {
  AIAppContextHandle outer = nullptr, inner = nullptr;
  EXPECT_EQ(contexts.PushAppContext(nullptr, &outer), kBadParameterErr);
  EXPECT_EQ(contexts.PushAppContext(plugin, nullptr), kBadParameterErr);
  ASSERT_EQ(contexts.PushAppContext(plugin, &outer), kNoErr);
  newSquare({0, 0}, 10);
  ASSERT_EQ(contexts.PushAppContext(plugin, &inner), kNoErr);
  newSquare({20, 0}, 10);
  EXPECT_EQ(host.contexts().depth(), 2U);
  EXPECT_EQ(document->undoCount(), 0U) << "the step is still open";
  EXPECT_EQ(contexts.PopAppContext(outer), kNoErr);
  EXPECT_EQ(host.contexts().depth(), 0U);
  EXPECT_TRUE(each(kBadParameterErr, contexts.PopAppContext(inner), contexts.PopAppContext(outer),
                   contexts.PopAppContext(nullptr)));
  EXPECT_EQ(document->undoCount(), 1U);
  EXPECT_EQ(document->undoName(), "test");
  {
    const host::UndoStep message(host.documents(), "Message");
    ASSERT_EQ(contexts.PushAppContext(plugin, &outer), kNoErr);
    newSquare({40, 0}, 10);
    EXPECT_EQ(contexts.PopAppContext(outer), kNoErr);
  }
  EXPECT_EQ(document->undoName(), "Message");
  EXPECT_EQ(document->undoCount(), 2U);
}

}  // namespace
