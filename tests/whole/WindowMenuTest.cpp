// Menus as the user sees them, and what reaches the plug-in through them.
#include <gmock/gmock.h>

#include <QDialog>
#include <QMenuBar>
#include <QtTest/QTest>

#include "QtManager.h"
#include "Recorder.h"
#include "WindowWorld.h"

namespace host {
namespace {

using testing::HasSubstr;

// Palettes of plug-ins count as dialogs, but keep nothing waiting.
class CountedPalette {
 public:
  CountedPalette() { RVADMQtManager::QtManager::IncreaseDialogCount(); }
  CountedPalette(const CountedPalette&) = delete;
  CountedPalette& operator=(const CountedPalette&) = delete;
  ~CountedPalette() { RVADMQtManager::QtManager::DecreaseDialogCount(); }
};

constexpr char kPanels[] = "Layers [x], Swatches [x], Artboards [x], Preflight, Create Line Type Layers";

TEST_F(WindowTest, MenusShowWhatTheApplicationAndThePluginOffer) {
  EXPECT_EQ(
      world.menuTree(),
      "File: Open..., Open Recent (off) {}, ---, Save (off), Save As... (off), Export... (off), Close "
      "(off), ---, Quit\n"
      "Edit: Undo (off), Redo (off), Delete (off), ---, Select All (off), Deselect (off), Select Inverse "
      "(off), Same Stroke Color (off), ---, Vandrell {corvane Preferences...}\n"
      "View: Zoom In (off), Zoom Out (off), Actual Size (off), Fit Artboard (off), Fit All (off), ---, "
      "Rulers [x], Units (off) {Points, Picas, Inches, Feet, Feet and Inches, Yards, Millimeters, "
      "Centimeters, Meters, Q, Pixels}, ---, Light [x], Dark, Language {System [x], ---, Deutsch, "
      "English, español, français, português (Brasil), 日本語}\n"
      "Window: Vandrell {corvane {Create Line Type Layers, Add brevia Register Marks... (off)}}, ---, " +
          std::string(kPanels) +
          "\n"
          "Help: About corvane-host, Vandrell {Legal Notices...}\n");

  EXPECT_THAT(window.openFiles({kPoster, kStickers}), testing::IsEmpty());
  EXPECT_THAT(world.menuTree(), HasSubstr("Save, Save As..., Export..., Close, "));
  EXPECT_THAT(world.menuTree(), HasSubstr("Add brevia Register Marks...}}, ---, " + std::string(kPanels) +
                                          ", ---, 1 full-bleed-poster.svg, 2 sticker-sheet.svg [x]\n"));
}

// The recorder is a plug-in that notes what it gets.
TEST_F(WindowTest, AnItemIsUpdatedBeforeItsMenuShowsAndGoesWhenChosen) {
  ASSERT_EQ(world.session.loadPlugin(testBundle("Recorder")), "");
  const SPPluginRef recorder = world.host.plugins()[world.host.plugins().size() - 1].handle;
  const auto add = [&](const char* text, const char* group, bool wantsUpdate) {
    MenuItem item;
    item.plugin = recorder;
    item.key = item.text = text;
    item.wantsUpdate = wantsUpdate;
    world.host.menus().addItem(item, *world.host.menus().groupByName(group));
  };
  add("Plain", "View Zoom", false);
  add("Wanting", "View Zoom", true);
  add("Elsewhere", "File Open", true);
  window.refresh();
  takeRecorded();

  world.choose({"View"});
  EXPECT_EQ(takeRecorded(), "AI Menu | AI Update\n");
  world.choose({"View", "Plain"});
  EXPECT_EQ(takeRecorded(), "AI Menu | AI Update\nAI Menu | AI Go\n");

  {
    const BoxAnswer answer([&](QDialog& box) {
      world.session.chooseMenuItem("Plain");
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    world.host.alert(AlertKind::Message, "Wait.");
    EXPECT_TRUE(answer.seen());
    EXPECT_EQ(takeRecorded(), "") << "while an alert is up no command reaches a plug-in";
  }
  {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    world.session.chooseMenuItem("Plain");
    EXPECT_EQ(takeRecorded(), "") << "nor while a dialog is";
  }
  const CountedPalette palette;
  world.activate();
  world.choose({"View", "Plain"});
  EXPECT_THAT(takeRecorded(), HasSubstr("AI Go"));
}

}  // namespace
}  // namespace host
