// The frame of palettes and their menu, in panels of the real host's window.
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <memory>
#include <stdexcept>

#include "AIPanelFlyoutMenu.h"
#include "AIUser.h"
#include "DialogWorld.h"
#include "HostWindow.h"
#include "NativeView.h"
#include "PanelCalls.h"
#include "PanelDesk.h"
#include "PanelIcons.h"
#include "RVADM_Menu.h"
#include "RVADM_NonModalDialog.h"
#include "RVADM_TextEdit.h"

namespace qRVADM {
namespace {

class TestPalette : public RVADM_NonModalDialog {
 public:
  void CreateItems() override {
    RVADM_NonModalDialog::CreateItems();
    for (RVADM_TextEdit*& field : fields) field = new RVADM_TextEdit(this, "", false, false);
  }
  void LayoutItems() override {
    ++layouts;
    fields[0]->MoveTo(4, 4, false);
    fields[0]->PlaceBelow(fields[1], kAlignLeft, kDefaultGap);
    if (layout) layout();
  }
  void OnWindowEvent(int event) override {
    if (react) {
      react(event);  // may delete the palette
    } else {
      RVADM_NonModalDialog::OnWindowEvent(event);
    }
  }
  void OnFlyoutOpening() override { OnWindowEvent(-1); }

  RVADM_TextEdit* fields[2] = {};
  int layouts = 0;
  std::function<void()> layout;
  std::function<void(int event)> react;
};

struct MenuHandler : RVADM_MenuHandler {
  explicit MenuHandler(std::function<void(std::uint32_t)> action) : select(std::move(action)) {}
  void OnSelected(std::uint32_t id) override { select(id); }
  std::function<void(std::uint32_t)> select;
};

class PaletteTest : public DialogTest {
 protected:
  PaletteTest() {
    Request({kAIPanelSuite, kAIPanelFlyoutMenuSuite, kAIUserSuite});
    drawing->setFocusPolicy(Qt::StrongFocus);
    window.setCentralWidget(drawing);
    window.setFocusProxy(drawing);
    host::setHostWindow(&window);
    window.show();
    window.activateWindow();
    host.onPluginFailure = [this](const std::string&) { ++failures; };
  }
  ~PaletteTest() override { delete palette; }

  // A docked panel, in which the palette stands.
  TestPalette& Open() {
    palette = new TestPalette;
    palette->Create("Palette", kResizablePanel, true, 0);
    palette->Show(true);
    for (QDockWidget* dock : window.findChildren<QDockWidget*>()) dock->setFloating(false);
    window.activateWindow();
    Settle();
    return *palette;
  }
  static void Settle() { QTest::qWait(40); }
  host::PanelRecord& Panel() { return *host.panels().all().back(); }
  QSize PanelSize() {
    const AISize size = Panel().view->size();
    return {static_cast<int>(size.width), static_cast<int>(size.height)};
  }

  QMainWindow window;
  QWidget* drawing = new QWidget;
  host::PanelDesk desk{window, host, [] {}};
  QPointer<TestPalette> palette;
  int failures = 0;
};

TEST_F(PaletteTest, PanelIsMadeInTheUnitsOfTheHost) {
  host.uiScaleFactor = [] { return 2.0; };
  const std::unique_ptr<TestPalette> made(new TestPalette);
  made->Create("Palette", 4, false, 16100);
  made->SetMaximumWidth(240);
  made->SetMinimumHeight(248);
  made->SetVerticalStep(21);
  const host::PanelRecord& panel = Panel();
  EXPECT_EQ(panel.maximum.width, 120);
  EXPECT_EQ(panel.minimum.height, 124);
  EXPECT_EQ(panel.verticalStep, 10.5);
  EXPECT_EQ(host::panelIconIds(panel.handle)->dark, 16100) << "the bundle has no versions of it";
  made->SetSize(240, 300);
  ADMRect bounds;
  made->GetLocalRect(&bounds);
  EXPECT_EQ(ToQRect(bounds), QRect(0, 0, 240, 300));
}

TEST_F(PaletteTest, DialogFollowsThePanelAndLayoutsComeToRest) {
  TestPalette& open = Open();
  open.layouts = 0;
  open.SetSize(300, 260);
  EXPECT_EQ(open.layouts, 0) << "not within the call";
  Settle();
  EXPECT_EQ(open.size(), PanelSize());
  EXPECT_GT(open.layouts, 0);
  open.layout = [&] { open.SetSize(open.width() + 1, open.height()); };  // asks for more for ever
  open.Relayout();
  QTest::qWait(400);
  const int layouts = open.layouts;
  QTest::qWait(50);
  EXPECT_EQ(open.layouts, layouts);
  open.layout = [&] { open.SetSize(260, 210); };
  open.Relayout();
  Settle();
  EXPECT_EQ(open.height(), 210) << "a layout is heard again after a pause";
}

TEST_F(PaletteTest, HandlersMayDeleteThePaletteOrThrow) {
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"shown", [&] { palette->Show(false); }},
      {"resized",
       [&] {
         Panel().view->setSize({333, 222});
       }},
      {"asked for a size", [&] { palette->SetSize(333, 222); }},
      {"flyout opens", [&] { host::tellOfFlyoutOpening(host, Panel().handle); }},
      {"flyout selection", [&] { host::tellOfFlyoutSelection(host, Panel().handle, 1); }},
  };
  for (const auto& [name, cause] : rows) {
    SCOPED_TRACE(name);
    TestPalette& ending = Open();
    ending.GetMenu()->AddItem("Go", false,
                              std::make_unique<MenuHandler>([&](std::uint32_t) { delete palette; }));
    ending.react = [&](int) { delete palette; };
    cause();
    EXPECT_EQ(palette, nullptr);
    EXPECT_TRUE(host.panels().all().empty());
    Settle();

    TestPalette& throwing = Open();
    const auto fail = [](auto) { throw std::runtime_error("handler"); };
    throwing.GetMenu()->AddItem("Go", false, std::make_unique<MenuHandler>(fail));
    throwing.react = fail;
    failures = 0;
    cause();
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(host.contexts().depth(), 0U);
    throwing.react = nullptr;
    throwing.SetSize(240, 260);
    Settle();
    EXPECT_EQ(throwing.size(), PanelSize()) << "the palette works on";
    delete palette;
  }
}

TEST_F(PaletteTest, KeyboardGoesBackToTheHost) {
  TestPalette& open = Open();
  open.fields[0]->setFocus();
  ASSERT_TRUE(open.fields[0]->hasFocus());
  for (RVADM_TextEdit* next : {open.fields[1], open.fields[0]}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus()) << "Tab stays in the palette";
  }
  open.setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_TRUE(drawing->hasFocus());

  QApplication::setDoubleClickInterval(60);
  for (const bool keeps : {false, true}) {
    open.setFocusPolicy(keeps ? Qt::StrongFocus : Qt::ClickFocus);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, open.mapTo(&window, QPoint(2, 90)));
    EXPECT_TRUE(open.hasFocus());
    QTest::qWait(QApplication::doubleClickInterval() + 60);
    EXPECT_EQ(drawing->hasFocus(), !keeps);
  }
}

}  // namespace
}  // namespace qRVADM
