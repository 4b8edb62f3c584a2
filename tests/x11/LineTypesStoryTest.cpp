// Line types, from the palette and the preferences to the layers of a drawing, and back from the file.
#include <gmock/gmock.h>

#include "WindowStory.h"

namespace host {
namespace {

using testing::ElementsAre;

constexpr char kPalette[] = "Create Line Type Layers";
constexpr char kPreferences[] = "corvane Preferences...";
constexpr char kPreferencesTitle[] = "Create Line Type Layers Preferences";
constexpr char kMove[] = "Move Selection to Line Type Layers";
constexpr QRgb kRed = qRgb(255, 0, 0);
constexpr QRgb kBlue = qRgb(0, 0, 255);
constexpr QRgb kWhite = qRgb(255, 255, 255);
constexpr AIRealPoint kSquare{200, 200};
constexpr AIRealPoint kOblong{425, 200};

constexpr char kDrawing[] =
    R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape"
  xmlns:sodipodi="http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd"
  width="600pt" height="800pt" viewBox="0 0 600 800">
<g inkscape:groupmode="layer" inkscape:label="Crease" sodipodi:insensitive="true"/>
<g inkscape:groupmode="layer" inkscape:label="Art">
<rect x="100" y="500" width="200" height="200" fill="#f00"/>
<rect x="350" y="500" width="150" height="200" fill="#00f"/>
<text x="100" y="200" font-size="90" font-family="DejaVu Sans">Text</text>
</g></svg>
)";

class LineTypesStory : public WindowStory {
 protected:
  LineTypesStory() { file = scratch.write("drawing.svg", kDrawing); }

  std::string row(const std::string& name) const { return std::string(kPalette) + " / " + name; }
  void start(const User& user) {
    open(user, file);
    user.chooseMenu(productMenu(user, kPalette));
    user.find(row("Kiss Cut"));
    user.click("Select");
  }
  void select(const User& user, const AIRealPoint& art, std::string_view heldKey = {}) {
    user.clickAt(placeOf(user, art), heldKey);
    user.wait("a selection", [&] { return world.document().selectedCount() > 0; });
  }
  void openPreferences(const User& user, const std::string& group) {
    user.chooseMenu({"Edit", user.see([&] { return world.textOf("Vandrell "); }),
                     user.see([&] { return world.textOf(kPreferences); })});
    user.waitForDialog(kPreferencesTitle);
    user.click(group);
  }
  void nameType(const User& user, const std::string& name) {
    user.waitForDialog("New Custom Line Type");
    user.press("Ctrl+a");
    user.type(name);
    user.press("Return");
    user.waitForDialog(kPreferencesTitle);
  }

  std::string file;
};

TEST_F(LineTypesStory, RowsBecomeLayers) {
  tell([&](User& user) {
    start(user);
    user.shoot("palette");
    EXPECT_FALSE(user.isEnabled(row("Create Line Type Layer")));
    user.click(row("Score"));
    EXPECT_TRUE(user.isEnabled(row("Create Line Type Layer")));
    user.click(row("Through Cut"), "Ctrl");
    user.click(row("Crease"), "Ctrl");
    user.shoot("palette-three-rows");
    user.click(row(kPalette));
    user.wait("layers", [&] { return world.document().state().layers.size() == 4; });
    EXPECT_THAT(layers(user), ElementsAre("Score", "Through Cut", "Art", "Crease")) << "one is there already";
    user.find("Layers / ~Score");
    user.press("Ctrl+z");
    user.wait("no layers", [&] { return world.document().state().layers.size() == 2; });
  });
}

TEST_F(LineTypesStory, ArtIsPaintedMovedSavedAndFoundAgain) {
  tell([&](User& user) {
    start(user);
    select(user, kSquare);
    user.click(row("Kiss Cut"));
    waitForColour(user, kSquare, kWhite);
    EXPECT_EQ(colourAt(user, kOblong), kBlue);
    user.find(row(kMove));
    EXPECT_FALSE(user.isThere(row("Create Line Type Layer")));
    user.shoot("painted");
    user.press("Ctrl+z");
    waitForColour(user, kSquare, kRed);
    user.find(row("Create Line Type Layer"));
    user.press("Ctrl+Shift+z");
    waitForColour(user, kSquare, kWhite);
    user.click(row(kMove));
    waitForArt(user, "Kiss Cut", 1);
    EXPECT_EQ(layers(user)[0], "Kiss Cut");
    user.find("Swatches / ~Kiss Cut");
    user.shoot("moved");
    save(user);
    user.press("Ctrl+w");
    user.wait("no drawing", [&] { return world.host.currentDocument() == nullptr; });
    user.shoot("no-drawing");

    open(user, file);
    waitForArt(user, "Kiss Cut", 1);
    EXPECT_NEAR(centresOn(user, "Kiss Cut")[0].x, 200, 0.5);
    user.find("Swatches / ~Kiss Cut");
    EXPECT_FALSE(user.isThere(row(kMove)));
    const QRect shownRow = user.find(row("Kiss Cut"));
    const QRgb patch = user.see([&] { return colourOfPixel({shownRow.x() + 10, shownRow.center().y()}); });
    user.wheel(placeOf(user, {100, 200}), 12, "Ctrl");
    waitForColour(user, {100, 200}, patch);
    select(user, {100, 200});
    user.find(row(kMove));
    EXPECT_TRUE(user.isEnabled(row(kMove))) << "its row is known again";
    user.shoot("reopened");
  });
}

TEST_F(LineTypesStory, ACustomTypeIsMadeRenamedAndUsed) {
  tell([&](User& user) {
    start(user);
    openPreferences(user, "Custom");
    user.shoot("preferences-custom");
    for (const char* name : {"Laser", "Other"}) {
      user.click("New Custom Line Type");
      nameType(user, name);
    }
    user.doubleClick("Laser");
    nameType(user, "Hot Knife");
    user.click("Other");
    user.click("Delete Custom Line Type");
    user.shoot("preferences-edited");
    user.click("OK");
    user.waitForNoDialog();
    user.wheel(user.find(row("Score")).center(), -30);
    EXPECT_TRUE(user.isThere(row("Hot Knife"))) << user.texts();
    for (const char* gone : {"Laser", "Other"}) EXPECT_FALSE(user.isThere(row(gone)));

    select(user, kSquare);
    user.click(row("Hot Knife"));
    waitForColour(user, kSquare, kWhite);
    user.click(row(kMove));
    waitForArt(user, "Hot Knife", 1);
    user.shoot("custom-type");
  });
}

}  // namespace
}  // namespace host
