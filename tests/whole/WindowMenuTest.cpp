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

TEST_F(WindowTest, MenusShowWhatTheApplicationAndThePluginOffer) {
  const std::string panels = "  ---\n  Layers [x]\n  Swatches [x]\n  Artboards [x]\n  Preflight\n  " +
                             world.textOf("Create Line Type Layers") + "\n";
  const std::string expectedEmpty =
      "File\n"
      "  Open...\n"
      "  Open Recent (off)\n"
      "  ---\n"
      "  Save (off)\n"
      "  Save As... (off)\n"
      "  Export... (off)\n"
      "  Close (off)\n"
      "  ---\n"
      "  Quit\n"
      "Edit\n"
      "  Undo (off)\n"
      "  Redo (off)\n"
      "  Delete (off)\n"
      "  ---\n"
      "  Select All (off)\n"
      "  Deselect (off)\n"
      "  Select Inverse (off)\n"
      "  Same Stroke Color (off)\n"
      "  ---\n"
      "  " +
      world.textOf("Vandrell ") + "\n    " + world.textOf("corvane Preferences...") +
      "\n"
      "View\n"
      "  Zoom In (off)\n"
      "  Zoom Out (off)\n"
      "  Actual Size (off)\n"
      "  Fit Artboard (off)\n"
      "  Fit All (off)\n"
      "  ---\n"
      "  Rulers [x]\n"
      "  Units (off)\n"
      "    Points\n"
      "    Picas\n"
      "    Inches\n"
      "    Feet\n"
      "    Feet and Inches\n"
      "    Yards\n"
      "    Millimeters\n"
      "    Centimeters\n"
      "    Meters\n"
      "    Q\n"
      "    Pixels\n"
      "  ---\n"
      "  Light [x]\n"
      "  Dark\n"
      "  Language\n"
      "    System [x]\n"
      "    ---\n"
      "    Deutsch\n"
      "    English\n"
      "    español\n"
      "    français\n"
      "    português (Brasil)\n"
      "    日本語\n"
      "Window\n"
      "  " +
      world.textOf("Vandrell") + "\n    " + world.textOf("corvane ") + "\n      " +
      world.textOf("Create Line Type Layers") + "\n      " + world.textOf(kMarksKey) + " (off)\n" + panels +
      "Help\n"
      "  About corvane-host\n"
      "  " +
      world.textOf("Vandrell  ") + "\n    " + world.textOf("Legal Notices...") + "\n";
  EXPECT_EQ(world.menuTree(), expectedEmpty);

  EXPECT_THAT(window.openFiles({kPoster, kStickers}), testing::IsEmpty());
  EXPECT_THAT(world.menuTree(), HasSubstr("  Save\n  Save As...\n  Export...\n  Close\n"));
  EXPECT_THAT(world.menuTree(), HasSubstr(world.textOf(kMarksKey) + "\n" + panels +
                                          "  ---\n  1 full-bleed-poster.svg\n  2 sticker-sheet.svg [x]\n"));
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
