// Register marks as the designer makes them: by the command, by its dialog and by hand.
#include <gmock/gmock.h>

#include <QDialog>

#include "Theme.h"
#include "WindowStory.h"

namespace host {
namespace {

constexpr char kDialog[] = "brevia Register Marks";
constexpr char kRoundTool[] = "brevia Register Round Mark Tool";
constexpr char kCrossTool[] = "brevia Register Cross Mark Tool";
constexpr char kMarkLayer[] = "Regmark";
constexpr QRgb kBlack = qRgb(0, 0, 0);
constexpr QRgb kWhite = qRgb(255, 255, 255);

using testing::HasSubstr;

class MarksStory : public WindowStory {
 protected:
  // Of two marks, one place is within the bar of a cross and not on a round one of its size.
  void expectCrossAt(const User& user, const AIRealPoint& centre, double size) {
    EXPECT_EQ(colourAt(user, {centre.x, centre.y + size * 0.45}), kBlack);
    EXPECT_EQ(colourAt(user, {centre.x + size * 0.3, centre.y + size * 0.3}), kWhite);
  }
  // The strip of the table head, along the left edge of the artboard.
  void waitForStrip(const User& user, bool isWanted) {
    const QPoint edge = placeOf(user, {0, 400});
    user.wait(isWanted ? "a strip" : "no strip", [&] {
      bool isThere = false;
      for (int x = -4; x <= 0; ++x) isThere |= colourOfPixel(edge + QPoint(x, 0)) == qRgb(253, 0, 0);
      return isThere == isWanted;
    });
  }
  double realOf(const User& user, const char* key) {
    return user.see([&] { return world.host.preferences().real("Corvane", key).value_or(-1); });
  }
  void openDialog(const User& user) {
    user.chooseMenu(productMenu(user, kMarksKey));
    user.waitForDialog(kDialog);
  }
};

TEST_F(MarksStory, TheDialogMakesTheMarksItSays) {
  const std::string file = scratch.write("square.svg", squareOnPage());
  tell([&](User& user) {
    open(user, file);
    waitForColour(user, {200, 200}, qRgb(255, 0, 0));
    user.shoot("opened");
    openDialog(user);
    EXPECT_TRUE(user.isChecked("Corner Marks"));
    EXPECT_FALSE(user.isEnabled("~Few - "));
    user.shoot("dialog-round");
    user.choose("Round", "Cross");
    EXPECT_EQ(user.valueOf("Stroke Weight:"), "2.835 pt") << "a cross has bars";
    user.fill("Size:", "20 mm");
    EXPECT_EQ(user.valueOf("Size:"), "56.693 pt");
    user.click("Auto Marks");
    EXPECT_TRUE(user.isEnabled("~Few - "));
    user.press("Tab");
    user.shoot("dialog-cross");
    user.click("OK");
    user.waitForNoDialog();
    const auto places = [&] { return centresOn(user, kMarkLayer); };
    user.wait("marks", [&] { return window.isWindowModified(); });
    const std::vector<AIRealPoint> marks = places();
    ASSERT_FALSE(marks.empty());
    user.shoot("marked");
    for (const AIRealPoint& mark : marks) expectCrossAt(user, mark, 56.693);
    EXPECT_NEAR(realOf(user, "Size"), 56.693, 0.001);

    const std::string step = user.see([&] { return "Undo " + world.document().undoName(); });
    EXPECT_THAT(step, HasSubstr("Add brevia Register Marks"));
    user.chooseMenu({"Edit", step});
    waitForArt(user, kMarkLayer, 0);
    waitForColour(user, marks[0], kWhite);

    openDialog(user);
    EXPECT_EQ(user.valueOf("Size:"), "56.693 pt");
    EXPECT_TRUE(user.isChecked("Auto Marks"));
    user.press("Escape");
    user.waitForNoDialog();
    waitForArt(user, kMarkLayer, 0);
  });
}

TEST_F(MarksStory, TheWholeDialogObeysTheKeyboard) {
  const std::string file = scratch.write("square.svg", squareOnPage());
  tell([&](User& user) {
    open(user, file);
    openDialog(user);
    user.press("Down");  // the list of shapes comes first
    EXPECT_EQ(user.valueOf("Stroke Weight:"), "2.835 pt");
    user.press("Tab");
    user.press("Ctrl+a");
    user.type("0.5in");
    user.press("Tab");
    EXPECT_EQ(user.valueOf("Size:"), "36 pt");
    user.press("Ctrl+a");
    user.type("rubbish");
    user.press("Tab");
    EXPECT_EQ(user.valueOf("Stroke Weight:"), "2.835 pt") << "what is no length is not taken";
    user.press("Down");
    user.press("Down");
    EXPECT_TRUE(user.isChecked("Auto Marks")) << user.texts();
    user.press("Up");
    EXPECT_TRUE(user.isChecked("Corner Marks"));
    user.press("Return");
    user.waitForNoDialog();
    waitForArt(user, kMarkLayer, 5);
    expectCrossAt(user, centresOn(user, kMarkLayer)[0], 36);
  });
}

TEST_F(MarksStory, ToolsPlaceMarksByHand) {
  const std::string file = scratch.write("square.svg", squareOnPage());
  tell([&](User& user) {
    open(user, file);
    user.click(kRoundTool);
    waitForStrip(user, true);
    user.clickAt(placeOf(user, {400, 600}));
    waitForArt(user, kMarkLayer, 1);
    EXPECT_NEAR(centresOn(user, kMarkLayer)[0].x, 400, 1.5);
    EXPECT_NEAR(centresOn(user, kMarkLayer)[0].y, 600, 1.5);
    waitForColour(user, {405, 605}, kBlack);
    user.press("Alt+4");  // steps through the place of both tools
    user.find(kCrossTool);
    user.clickAt(placeOf(user, {500, 300}));
    waitForArt(user, kMarkLayer, 2);
    EXPECT_EQ(colourAt(user, {405, 605}), kBlack) << "the round one stays";
    waitForColour(user, {507, 307}, kBlack);  // a cross with a fill is a square
    user.shoot("by-hand");
    user.press("Ctrl+z");
    waitForArt(user, kMarkLayer, 1);
    user.press("Ctrl+z");
    waitForArt(user, kMarkLayer, 0);

    user.wheel(placeOf(user, {300, 400}), 3, "Ctrl");
    user.clickAt(placeOf(user, {320, 420}));
    waitForArt(user, kMarkLayer, 1);
    EXPECT_NEAR(centresOn(user, kMarkLayer)[0].y, 420, 1) << "in a view that was moved";
    user.press("Ctrl+z");

    user.doubleClick(kCrossTool);
    user.waitForDialog(kDialog);
    EXPECT_TRUE(user.isThere("Cross"));
    user.click("Marks Manually");
    user.click("OK");
    user.waitForNoDialog();
    waitForArt(user, kMarkLayer, 0);
    user.press("Ctrl+0");
    user.clickAt(placeOf(user, {400, 600}));
    waitForArt(user, kMarkLayer, 1);
    waitForColour(user, {400, 600}, kBlack);
    expectCrossAt(user, {400, 600}, 17);  // in the colours of the dialog
    user.click("Select");
    waitForStrip(user, false);
  });
}

}  // namespace
}  // namespace host
