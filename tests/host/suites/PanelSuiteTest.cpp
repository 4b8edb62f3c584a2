// Contexts, panels and their menus as a plug-in has them, without a window.
#include <functional>
#include <limits>
#include <stdexcept>

#include "AIContext.h"
#include "AIPanel.h"
#include "AIPanelFlyoutMenu.h"
#include "HostFixture.h"
#include "HostObjects.h"
#include "PanelCalls.h"
#include "UndoStep.h"

namespace {

// Has the size it is told to have.
class PlainView : public host::PanelView {
 public:
  PlainView(host::Host& host, host::PanelRecord& panel) : host_(host), panel_(panel), size_(panel.minimum) {}

  NativeView* view() override { return nullptr; }
  void show(bool show) override {
    isShown_ = show;
    tellOfVisibility(host_, panel_.handle, show);
  }
  bool isShown() const override { return isShown_; }
  AISize size() const override { return size_; }
  void setSize(AISize size) override { size_ = size; }
  void move(std::int32_t, std::int32_t) override {}
  void recordChanged() override { size_ = heldWithin(panel_, size_); }

 private:
  host::Host& host_;
  host::PanelRecord& panel_;
  AISize size_;
  bool isShown_ = false;
};

class PlainViews : public host::PanelViews {
 public:
  explicit PlainViews(host::Host& host) : host_(host) { host.panels().views = this; }
  std::unique_ptr<host::PanelView> make(host::PanelRecord& panel) override {
    return std::make_unique<PlainView>(host_, panel);
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
  const AIContextSuite& contexts = acquire<AIContextSuite>(kAIContextSuite, kAIContextSuiteVersion);
  const AIPanelSuite& panels = acquire<AIPanelSuite>(kAIPanelSuite, kAIPanelSuiteVersion);
  const AIPanelFlyoutMenuSuite& menus =
      acquire<AIPanelFlyoutMenuSuite>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion);
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
  EXPECT_EQ(
      codes(contexts.PopAppContext(inner), contexts.PopAppContext(outer), contexts.PopAppContext(nullptr)),
      std::vector<AIErr>(3, kBadParameterErr));
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
  const AIReal nan = std::numeric_limits<AIReal>::quiet_NaN();
  AIPanelRef panel = nullptr;
  EXPECT_EQ(create("", 1, {1, 1}, nullptr, &panel), kBadParameterErr);
  EXPECT_EQ(create("a", 0, {1, 1}, nullptr, &panel), kBadParameterErr);
  EXPECT_EQ(create("a", 1, {nan, 1}, nullptr, &panel), kBadParameterErr);
  EXPECT_EQ(create("a", 1, {1, -1}, nullptr, &panel), kBadParameterErr);
  EXPECT_EQ(create("a", 1, {16385, 1}, nullptr, &panel), kBadParameterErr);
  EXPECT_EQ(create("a", 1, {1, 1}, reinterpret_cast<AIPanelFlyoutMenuRef>(this), &panel), kBadParameterErr);
  EXPECT_EQ(create("a", 1, {1, 1}, nullptr, nullptr), kBadParameterErr);
  const AIPanelRef first = newPanel();
  EXPECT_EQ(create("palette", 1, {1, 1}, nullptr, &panel), kBadParameterErr) << "the identifier is taken";
  void* userData = nullptr;
  EXPECT_EQ(panels.GetUserData(first, &userData), kNoErr);
  EXPECT_EQ(userData, this);
  EXPECT_EQ(panels.Destroy(first), kNoErr);
  AISize size{};
  EXPECT_EQ(codes(panels.Destroy(first), panels.GetSize(first, &size), panels.Show(first, 1),
                  panels.SetSizeCallback(first, nullptr), panels.GetUserData(nullptr, &userData)),
            std::vector<AIErr>(5, kBadParameterErr));
  newPanel();
  host.panels().views = nullptr;
  EXPECT_EQ(create("other", 1, {1, 1}, nullptr, &panel), kNoPanelsErr);
}

TEST_F(PanelSuiteTest, SizesStayWithinTheLimits) {
  const AIPanelRef panel = newPanel();
  const auto size = [&] {
    AISize now{};
    EXPECT_EQ(panels.GetSize(panel, &now), kNoErr);
    return std::pair(now.width, now.height);
  };
  EXPECT_EQ(panels.SetMaximumSize(panel, {300, 200}), kNoErr);
  struct Row {
    AISize asked;
    std::pair<AIReal, AIReal> got;
  };
  for (const Row& row : {Row{{150, 60}, {150, 60}}, Row{{1, 1000}, {100, 200}}, Row{{1000, -5}, {300, 50}}}) {
    EXPECT_EQ(panels.SetSize(panel, row.asked), kNoErr);
    EXPECT_EQ(size(), row.got);
  }
  EXPECT_EQ(panels.SetMinimumSize(panel, {120, 80}), kNoErr);
  EXPECT_EQ(size(), std::pair(300.0, 80.0));
  EXPECT_EQ(panels.SetMinimumSize(panel, {301, 80}), kBadParameterErr);
  EXPECT_EQ(panels.SetMaximumSize(panel, {300, 79}), kBadParameterErr);
  EXPECT_EQ(panels.SetVerticalStep(panel, -1), kBadParameterErr);
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
  EXPECT_TRUE(showWith("throws", [](AIPanelRef) { throw std::runtime_error("no paper."); }));
  ASSERT_EQ(host.alerts().size(), 1U);
  EXPECT_EQ(host.alerts()[0].text, "A plug-in failed: no paper.");
  EXPECT_TRUE(showWith("throws something", [](AIPanelRef) { throw 1; }));
  EXPECT_EQ(host.alerts().back().text, "A plug-in failed.");
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
  EXPECT_EQ(menus.AppendItem(menu, 0, text("Zero")), kNoErr);
  EXPECT_EQ(menus.AppendSeparator(menu), kNoErr);
  EXPECT_EQ(menus.AppendItem(menu, 7, text("Seven")), kNoErr);
  EXPECT_EQ(menus.SetItemEnabled(menu, 0, 0), kNoErr);
  EXPECT_EQ(menus.SetItemChecked(menu, 7, 1), kNoErr);
  EXPECT_EQ(menus.AppendItem(menu, 7, text("Again")), kBadParameterErr);
  EXPECT_EQ(menus.SetItemChecked(menu, 8, 1), kNoSuchItemErr);
  const auto& items = host.objects().flyoutMenus.find(menu)->items;
  ASSERT_EQ(items.size(), 3U);
  EXPECT_FALSE(items[0].enabled);
  EXPECT_TRUE(items[1].isSeparator);
  EXPECT_TRUE(items[2].checked);
  const AIPanelRef panel = newPanel();
  EXPECT_EQ(panels.SetFlyoutMenu(panel, menu), kNoErr);
  EXPECT_EQ(menus.Destroy(menu), kNoErr);
  EXPECT_EQ(host.panels().find(panel)->menu, nullptr);
  EXPECT_EQ(codes(menus.Destroy(menu), menus.AppendSeparator(menu), panels.SetFlyoutMenu(panel, menu)),
            std::vector<AIErr>(3, kBadParameterErr));
}

}  // namespace
