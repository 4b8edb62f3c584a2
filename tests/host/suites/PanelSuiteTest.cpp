// Contexts and the menus of panels as a plug-in has them, without a window.
#include "AIContext.h"
#include "AIPanelFlyoutMenu.h"
#include "HostFixture.h"
#include "HostObjects.h"
#include "UndoStep.h"

namespace {

class PanelSuiteTest : public HostFixture {
 protected:
  const AIContextSuite& contexts = ACQUIRE(AIContextSuite);
  const AIPanelFlyoutMenuSuite& menus = ACQUIRE(AIPanelFlyoutMenuSuite);
};

TEST_F(PanelSuiteTest, AContextIsOneUndoStepWithAllThatWasPushedWithinIt) {
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

TEST_F(PanelSuiteTest, AMenuHasAnIdOnceUntilItGoes) {
  AIPanelFlyoutMenuRef menu = nullptr;
  ASSERT_EQ(menus.Create(&menu), kNoErr);
  EXPECT_EQ(menus.AppendSeparator(menu), kNoErr);
  EXPECT_EQ(menus.AppendItem(menu, 0, text("Zero")), kNoErr);
  EXPECT_EQ(menus.AppendItem(menu, 0, text("Again")), kBadParameterErr);
  EXPECT_EQ(menus.SetItemEnabled(menu, 0, 0), kNoErr) << "not the separator";
  EXPECT_EQ(menus.SetItemChecked(menu, 8, 1), kNoSuchItemErr);
  const auto& items = host.objects().flyoutMenus.find(menu)->items;
  ASSERT_EQ(items.size(), 2U);
  EXPECT_TRUE(items[0].enabled && !items[1].enabled);
  EXPECT_EQ(menus.Destroy(menu), kNoErr);
  EXPECT_TRUE(each(kBadParameterErr, menus.Destroy(menu), menus.AppendSeparator(menu)));
}

}  // namespace
