// Panels of plug-ins in the window, and what the window makes of handlers that throw.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDockWidget>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QtTest/QTest>
#include <stdexcept>

#include "AIContext.h"
#include "AIPanel.h"
#include "AIPanelFlyoutMenu.h"
#include "AIUnicodeString.h"
#include "SPBasic.h"
#include "WindowWorld.h"

namespace host {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::vector<std::string> told;                   // to the plug-in, by the callbacks
std::function<void(AIPanelRef)> duringCallback;  // what the plug-in does meanwhile; may be null

AIErr note(AIPanelRef panel, const std::string& what) {
  told.push_back(what);
  if (duringCallback) duringCallback(panel);
  return kNoErr;
}

class WindowPanelTest : public WindowTest {
 protected:
  WindowPanelTest() {
    told.clear();
    duringCallback = nullptr;
  }

  template <typename Suite>
  const Suite& acquire(const char* name, std::int32_t version) {
    const void* table = nullptr;
    EXPECT_EQ(world.host.basic()->AcquireSuite(name, version, &table), kSPNoError) << name;
    return *static_cast<const Suite*>(table);
  }

  AIUnicodeStringHandle text(const std::string& bytes) {
    AIUnicodeStringHandle string = nullptr;
    EXPECT_EQ(strings.New(bytes.data(), bytes.size(), kAIUTF8CharacterEncoding, &string), kNoErr);
    return string;
  }

  AIPanelRef newPanel(bool resizable = true) {
    AIPanelRef panel = nullptr;
    EXPECT_EQ(panels.Create(world.host.plugins()[0].handle, text("palette"), text("Line & Types"), 2,
                            {200, 100}, resizable ? 1 : 0, nullptr, nullptr, &panel),
              kNoErr);
    panels.SetVisibilityCallback(panel, [](AIPanelRef which, AIBoolean shown) {
      return note(which, shown != 0 ? "shown" : "hidden");
    });
    panels.SetSizeCallback(panel, [](AIPanelRef which) { return note(which, "size"); });
    panels.SetStateCallback(panel, [](AIPanelRef which) { return note(which, "state"); });
    panels.SetFlyoutOpeningCallback(panel, [](AIPanelRef which) { return note(which, "opening"); });
    panels.SetFlyoutSelectionCallback(
        panel, [](AIPanelRef which, std::uint32_t id) { return note(which, "item " + std::to_string(id)); });
    return panel;
  }

  std::vector<std::string> takeTold() { return std::exchange(told, {}); }
  AISize size(AIPanelRef panel) {
    AISize now{};
    EXPECT_EQ(panels.GetSize(panel, &now), kNoErr);
    return now;
  }
  bool isShown(AIPanelRef panel) {
    AIBoolean shown = 0;
    EXPECT_EQ(panels.IsShown(panel, &shown), kNoErr);
    return shown != 0;
  }
  QWidget& viewOf(AIPanelRef panel) {
    NativeView* view = nullptr;
    EXPECT_EQ(panels.GetPlatformView(panel, &view), kNoErr);
    return *reinterpret_cast<QWidget*>(view);
  }
  QDockWidget& dock() { return *world.window->findChild<QDockWidget*>("palette"); }
  void click(const QString& button) {
    for (QToolButton* candidate : dock().findChildren<QToolButton*>()) {
      if (candidate->accessibleName() == button + " Line & Types" && candidate->isVisible()) {
        return QTest::mouseClick(candidate, Qt::LeftButton);
      }
    }
    ADD_FAILURE() << "no button " << button.toStdString();
  }

  const AIUnicodeStringSuite& strings =
      acquire<AIUnicodeStringSuite>(kAIUnicodeStringSuite, kAIUnicodeStringSuiteVersion);
  const AIPanelSuite& panels = acquire<AIPanelSuite>(kAIPanelSuite, kAIPanelSuiteVersion);
  const AIPanelFlyoutMenuSuite& menus =
      acquire<AIPanelFlyoutMenuSuite>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion);
  const AIContextSuite& contexts = acquire<AIContextSuite>(kAIContextSuite, kAIContextSuiteVersion);
};

TEST_F(WindowPanelTest, IsShownAndHiddenByThePluginTheMenuAndItsButton) {
  const AIPanelRef panel = newPanel();
  EXPECT_FALSE(isShown(panel));
  EXPECT_EQ(panels.Show(panel, 1), kNoErr);
  EXPECT_THAT(takeTold(), Contains("shown"));
  settle();
  EXPECT_TRUE(viewOf(panel).isVisible());
  EXPECT_EQ(window.dockWidgetArea(&dock()), Qt::RightDockWidgetArea);
  EXPECT_THAT(world.menuTree(), HasSubstr(", Line & Types [x]"));

  takeTold();
  world.choose({"Window", "Line & Types"});
  EXPECT_THAT(takeTold(), ElementsAre("hidden"));
  EXPECT_FALSE(isShown(panel));
  world.choose({"Window", "Line & Types"});
  EXPECT_TRUE(isShown(panel));
  settle();
  takeTold();
  click("Change the state of");
  click("Collapse");
  EXPECT_FALSE(viewOf(panel).isVisible());
  click("Expand");
  EXPECT_TRUE(viewOf(panel).isVisible());
  click("Float");
  EXPECT_TRUE(dock().isFloating());
  EXPECT_EQ(takeTold().front(), "state");
  duringCallback = [&](AIPanelRef closing) { EXPECT_EQ(panels.Destroy(closing), kNoErr); };
  click("Close");
  EXPECT_THAT(takeTold(), ElementsAre("hidden"));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  settle();
  EXPECT_THAT(world.menuTree(), Not(HasSubstr("Line & Types")));
}

TEST_F(WindowPanelTest, KeepsItsLimitsWhateverRoomThereIs) {
  const AIPanelRef panel = newPanel();
  panels.SetMaximumSize(panel, {300, 400});
  panels.SetVerticalStep(panel, 30);
  EXPECT_EQ(panels.SetSize(panel, {250, 999}), kNoErr);
  EXPECT_EQ(size(panel).height, 400) << "a hidden one, by the plug-in";
  EXPECT_THAT(takeTold(), ElementsAre("size"));
  panels.Move(panel, 40, 40);
  panels.Show(panel, 1);
  settle();
  EXPECT_FALSE(dock().isFloating()) << "at first it covers no art";
  click("Float");
  settle();
  ASSERT_TRUE(dock().isFloating());
  EXPECT_EQ(dock().pos(), QPoint(40, 40));
  panels.Move(panel, 50, 40);
  EXPECT_EQ(dock().pos(), QPoint(50, 40));
  takeTold();
  struct Row {
    QSize room;
    AISize got;
  };
  const QSize around = dock().size() - dock().widget()->size();
  for (const Row& row :
       {Row{{250, 200}, {250, 190}}, Row{{10, 10}, {200, 100}}, Row{{900, 900}, {300, 400}}}) {
    dock().resize(row.room + around);
    settle();
    EXPECT_EQ(size(panel).width, row.got.width);
    EXPECT_EQ(size(panel).height, row.got.height);
    EXPECT_EQ(takeTold().size(), 1U);
  }
  EXPECT_EQ(panels.SetSize(panel, {220, 130}), kNoErr);
  EXPECT_EQ(takeTold().size(), 1U);
  settle();
  EXPECT_EQ(dock().size(), QSize(220, 130) + around) << "a panel that floats has the room it asks for";
}

TEST_F(WindowPanelTest, OpensItsMenuAndNamesTheUndoStepAfterTheItem) {
  window.openFiles({kStickers});
  AIPanelFlyoutMenuRef menu = nullptr;
  menus.Create(&menu);
  menus.AppendItem(menu, 5, text("Lock & All"));
  const AIPanelRef panel = newPanel();
  panels.SetFlyoutMenu(panel, menu);
  panels.Show(panel, 1);
  settle();
  takeTold();
  click("Menu of");
  EXPECT_THAT(takeTold(), ElementsAre("opening"));
  auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(popup, nullptr);
  duringCallback = [&](AIPanelRef) {
    AIAppContextHandle context = nullptr;
    contexts.PushAppContext(world.host.plugins()[0].handle, &context);
    world.document().editLayer(world.document().state().layers[0]).title = "Locked";
    contexts.PopAppContext(context);
  };
  QTest::mouseClick(popup, Qt::LeftButton, {}, popup->actionGeometry(popup->actions().front()).center());
  EXPECT_THAT(takeTold(), ElementsAre("item 5"));
  EXPECT_EQ(world.document().undoName(), "Lock & All");
  settle();
  EXPECT_TRUE(window.isWindowModified()) << "the window shows what the plug-in did";
  EXPECT_EQ(menus.Destroy(menu), kNoErr);
  EXPECT_EQ(world.host.panels().find(panel)->menu, nullptr);
}

TEST_F(WindowPanelTest, ComesBackWhereItWas) {
  AIPanelRef panel = newPanel();
  panels.Show(panel, 1);
  click("Float");
  dock().move(60, 70);
  panels.SetSize(panel, {230, 140});
  EXPECT_TRUE(window.close());
  EXPECT_EQ(panels.Destroy(panel), kNoErr);

  world.window.emplace(world.host, world.session, FileChooser{});
  world.window->show();
  panel = newPanel();
  EXPECT_FALSE(isShown(panel));
  EXPECT_EQ(size(panel).width, 230);
  EXPECT_EQ(size(panel).height, 140);
  settle();
  EXPECT_TRUE(isShown(panel));
  EXPECT_TRUE(dock().isFloating());
  EXPECT_EQ(dock().pos(), QPoint(60, 70));
  const QPointer<QWidget> view = &viewOf(panel);
  world.window.reset();
  EXPECT_FALSE(isShown(panel));
  EXPECT_NE(view, nullptr) << "it stays as long as its panel";
  EXPECT_EQ(panels.Destroy(panel), kNoErr);
  EXPECT_EQ(view, nullptr);
}

class PaintsBadly : public QWidget {
 public:
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent*) override {
    ++paints;
    throw std::runtime_error("no ink");
  }
};

TEST_F(WindowPanelTest, HandlersThatThrowAreToldOfAndTheWindowGoesOn) {
  const AIPanelRef panel = newPanel();
  auto* button = new QPushButton("Fail", &viewOf(panel));
  QObject::connect(button, &QPushButton::clicked, [] { throw std::runtime_error("no paper"); });
  panels.Show(panel, 1);
  settle();
  const auto textTold = [&] {
    const BoxAnswer answer(Qt::Key_Escape);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return answer.seen() && QApplication::activeModalWidget() == nullptr; }));
    return answer.seen() ? answer.seen()->text : std::string();
  };
  for (int i = 0; i < 2; ++i) {
    QTimer::singleShot(0, [&] { QTest::mouseClick(button, Qt::LeftButton); });
    EXPECT_EQ(textTold(), "A plug-in failed: no paper.") << "each time that the user asks for it";
  }
  auto* bad = new PaintsBadly;
  bad->setParent(&viewOf(panel));
  bad->resize(50, 50);
  QTimer::singleShot(0, [&] { bad->show(); });
  EXPECT_EQ(textTold(), "A plug-in failed: no ink.");
  const std::size_t alerts = world.host.alerts().size();
  for (int i = 0; i < 5; ++i) {
    bad->update();
    QTest::qWait(10);
  }
  EXPECT_GE(bad->paints, 3);
  EXPECT_EQ(world.host.alerts().size(), alerts) << "painting is told of once";
  panels.Destroy(panel);
}

}  // namespace
}  // namespace host
