// Contexts, panels and their menus as a plug-in has them, without a window.
#include <cmath>
#include <functional>

#include "AIContext.h"
#include "AIPanel.h"
#include "AIPanelFlyoutMenu.h"
#include "HostFixture.h"
#include "HostObjects.h"
#include "PanelCalls.h"
#include "UndoStep.h"

namespace {

// Shows nothing, but tells of it.
struct PlainView : host::PanelView {
  PlainView(host::Host& itsHost, AIPanelRef itsPanel) : host(itsHost), panel(itsPanel) {}

  NativeView* view() override { return nullptr; }
  void show(bool show) override { tellOfVisibility(host, panel, show); }
  bool isShown() const override { return false; }
  AISize size() const override { return {}; }
  void setSize(AISize) override {}
  void move(std::int32_t, std::int32_t) override {}
  void recordChanged() override {}

  host::Host& host;
  AIPanelRef panel;
};

class PlainViews : public host::PanelViews {
 public:
  explicit PlainViews(host::Host& host) : host_(host) { host.panels().views = this; }
  std::unique_ptr<host::PanelView> make(host::PanelRecord& panel) override {
    return std::make_unique<PlainView>(host_, panel.handle);
  }

 private:
  host::Host& host_;
};

class PanelSuiteTest : public HostFixture {
 protected:
  AIErr create(const char* identifier, std::int32_t states, AISize minimum, AIPanelFlyoutMenuRef menu,
               AIPanelRef* panel) {
    return panels.Create(plugin, text(identifier), text("Title"), states, minimum, 1, menu, this, panel);
  }
  AIPanelRef newPanel(const char* identifier = "palette") {
    AIPanelRef panel = nullptr;
    EXPECT_EQ(create(identifier, 1, {100, 50}, nullptr, &panel), kNoErr);
    return panel;
  }

  PlainViews views{host};
  const AIContextSuite& contexts = ACQUIRE(AIContextSuite);
  const AIPanelSuite& panels = ACQUIRE(AIPanelSuite);
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

TEST_F(PanelSuiteTest, PanelsAreMadeOnlyOfSoundArguments) {
  AIPanelRef panel = nullptr;
  const auto foreign = reinterpret_cast<AIPanelFlyoutMenuRef>(this);
  const AIPanelRef first = newPanel();
  EXPECT_TRUE(each(kBadParameterErr, create("", 1, {1, 1}, nullptr, &panel),
                   create("a", 0, {1, 1}, nullptr, &panel), create("a", 1, {NAN, 1}, nullptr, &panel),
                   create("a", 1, {1, -1}, nullptr, &panel), create("a", 1, {16385, 1}, nullptr, &panel),
                   create("a", 1, {1, 1}, foreign, &panel), create("a", 1, {1, 1}, nullptr, nullptr),
                   create("palette", 1, {1, 1}, nullptr, &panel)));
  EXPECT_EQ(panels.SetMaximumSize(first, {300, 200}), kNoErr);
  EXPECT_EQ(panels.SetMinimumSize(first, {120, 80}), kNoErr);
  EXPECT_TRUE(each(kBadParameterErr, panels.SetMinimumSize(first, {301, 80}),
                   panels.SetMaximumSize(first, {300, 79}), panels.SetVerticalStep(first, -1)));
  void* userData = nullptr;
  EXPECT_EQ(panels.GetUserData(first, &userData), kNoErr);
  EXPECT_EQ(userData, this);
  EXPECT_EQ(panels.Destroy(first), kNoErr);
  AISize size{};
  EXPECT_TRUE(each(kBadParameterErr, panels.Destroy(first), panels.GetSize(first, &size),
                   panels.Show(first, 1), panels.SetSizeCallback(first, nullptr),
                   panels.GetUserData(nullptr, &userData)));
  newPanel();
  host.panels().views = nullptr;
  EXPECT_EQ(create("other", 1, {1, 1}, nullptr, &panel), kNoPanelsErr);
}

std::function<void(AIPanelRef)> onShow;

TEST_F(PanelSuiteTest, CallbacksMayThrowDestroyTheirPanelOrLeaveContexts) {
  const auto showWith = [&](const char* identifier, std::function<void(AIPanelRef)> act) {
    const AIPanelRef panel = newPanel(identifier);
    onShow = std::move(act);
    EXPECT_EQ(panels.SetVisibilityCallback(panel,
                                           [](AIPanelRef shown, AIBoolean) {
                                             onShow(shown);
                                             return kNoErr;
                                           }),
              kNoErr);
    EXPECT_EQ(panels.Show(panel, 1), kNoErr);
    return host.panels().find(panel) != nullptr;
  };
  EXPECT_TRUE(showWith("throws", [](AIPanelRef) { throw 1; }));
  EXPECT_EQ(host.alerts().at(0).text, "A plug-in failed.");
  EXPECT_FALSE(showWith("destroys", [&](AIPanelRef panel) { EXPECT_EQ(panels.Destroy(panel), kNoErr); }));
  EXPECT_TRUE(showWith("leaves", [&](AIPanelRef) {
    AIAppContextHandle context = nullptr;
    EXPECT_EQ(contexts.PushAppContext(plugin, &context), kNoErr);
  }));
  EXPECT_EQ(host.contexts().depth(), 0U);
}

TEST_F(PanelSuiteTest, AMenuHasAnIdOnceAndLeavesItsPanelsWhenItGoes) {
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
  const AIPanelRef panel = newPanel();
  EXPECT_EQ(panels.SetFlyoutMenu(panel, menu), kNoErr);
  EXPECT_EQ(menus.Destroy(menu), kNoErr);
  EXPECT_EQ(host.panels().find(panel)->menu, nullptr);
  EXPECT_TRUE(each(kBadParameterErr, menus.Destroy(menu), menus.AppendSeparator(menu),
                   panels.SetFlyoutMenu(panel, menu)));
}

}  // namespace
