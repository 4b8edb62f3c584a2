// What may go wrong on the table, as a user comes to know of it: in the panel, and on the command line.
#include <gmock/gmock.h>

#include <QDockWidget>
#include <QListView>
#include <QtTest/QTest>
#include <nlohmann/json.hpp>

#include "OpenDrawing.h"
#include "WindowWorld.h"

namespace host {
namespace {

using nlohmann::json;

// One line type with a hidden path and an open one, which lies 150 mm from the left.
constexpr char kDrawing[] =
    "<svg xmlns='http://www.w3.org/2000/svg' xmlns:ch='urn:x-corvane-host:drawing:1'"
    " xmlns:inkscape='http://www.inkscape.org/namespaces/inkscape'"
    " width='200mm' height='200mm' viewBox='0 0 200 200'><metadata><ch:swatches>"
    "<ch:color name='Kiss Cut' definition='rgb(1 0 0)' spot='true'/></ch:swatches></metadata>\n"
    "<g inkscape:groupmode='layer' inkscape:label='Kiss Cut'>"
    "<path style='fill:none;stroke:#f00;display:none' ch:stroke=\"custom('Kiss Cut' 0)\" d='M10 10h9v9h-9z'/>"
    "<path style='fill:none;stroke:#f00' ch:stroke=\"custom('Kiss Cut' 0)\" d='M150 10h9v9'/></g>\n"
    "<g inkscape:groupmode='layer' inkscape:label='Print'><rect width='5' height='5'/></g>\n</svg>\n";

class PreflightPanelTest : public WindowTest {
 protected:
  QListView& list() {
    return *world.window->findChild<QDockWidget*>("corvane-host Preflight")->findChild<QListView*>();
  }
  std::vector<std::string> rows() {
    std::vector<std::string> texts;
    for (int row = 0; row < list().model()->rowCount(); ++row) {
      texts.push_back(list().model()->index(row, 0).data().toString().toStdString());
    }
    return texts;
  }
  bool isShown(const std::vector<std::string>& expected) {
    return QTest::qWaitFor([&] { return rows() == expected; }, 3000);
  }
};

TEST_F(PreflightPanelTest, AClickSelectsWhatWasFoundAndAChangeIsCheckedAgain) {
  const std::string file = scratch.write("cut.svg", kDrawing);
  EXPECT_THAT(window.openFiles({file}), testing::IsEmpty());
  EXPECT_THAT(rows(), testing::IsEmpty()) << "nothing is checked for a panel that is hidden";
  world.choose({"Window", "Preflight"});
  const std::string open =
      "1 path in Kiss Cut is open, at (159, 181) mm: only a closed line cuts a part free";
  const std::string hidden = "1 path in Kiss Cut is hidden, at (10, 190) mm: nothing of it reaches the table";
  ASSERT_TRUE(isShown({"Open paths", open, "Hidden or locked", hidden})) << testing::PrintToString(rows());

  Document& document = world.document();
  const auto press = [&](int row) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualRect(list().model()->index(row, 0)).center());
    settle();
  };
  press(1);
  ASSERT_EQ(document.selectedCount(), 1U);
  const ArtId found = document.selection().front();
  EXPECT_EQ(document.art(found)->path->segments.size(), 3U);
  const AIRealRect shown = world.host.documents().current()->view.bounds();
  EXPECT_NEAR((shown.left + shown.right) / 2, 154.5 * 72 / 25.4, 2) << "brought into view";
  EXPECT_GT(list().visualRect(list().model()->index(1, 0)).height(), 2 * list().fontMetrics().height());
  document.deselectAll();
  QTest::keyClick(&list(), Qt::Key_Right);
  EXPECT_EQ(document.selectedCount(), 1U) << "the first of its art";
  document.deselectAll();
  press(1);
  EXPECT_EQ(document.selectedCount(), 1U) << "a click on the current row";
  QTest::keyClick(&list(), Qt::Key_F5);
  EXPECT_EQ(list().currentIndex().row(), 1) << "keys go on from where they were";
  QTest::keyClick(&list(), Qt::Key_Down);  // over the heading
  EXPECT_EQ(document.selectedCount(), 0U) << "hidden art is not selected";
  EXPECT_FALSE(window.isWindowModified());

  world.session.edit("Delete", [&](Document& edited) { edited.deleteArt(found); });
  world.window->refresh();
  EXPECT_TRUE(isShown({"Hidden or locked", hidden})) << testing::PrintToString(rows());
}

TEST(InfoCheck, TellsFindingsWithACodeOfTheirOwn) {
  const ScratchFolder scratch;
  const std::string drawing = scratch.write("cut.svg", kDrawing);
  const ProcessResult run = runHost({"info", "--check", "--json", drawing});
  EXPECT_EQ(run.code, 3) << run.err;
  const json findings = json::parse(run.out)["findings"];
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0]["kind"], "open-path");
  EXPECT_EQ(findings[0]["place"], "Kiss Cut");
  EXPECT_EQ(findings[0]["art"], 1);
  EXPECT_NEAR(findings[0]["boxes"][0]["left"].get<double>(), 150 * 72 / 25.4, 1e-6);
  EXPECT_EQ(runHost({"info", "--json", drawing}).code, 0);
  EXPECT_EQ(json::parse(runHost({"info", "--json", drawing}).out).count("findings"), 0U);
}

// The layers of most examples have names, but no spot colours yet.
TEST(InfoCheck, SaysNothingOfTheMarkedExamplesThatIsNotSo) {
  const ScratchFolder scratch;
  struct Example {
    std::string name;
    std::size_t layersWithoutColour;
  };
  for (const auto& [name, layers] : {Example{"sticker-sheet", 1}, Example{"full-bleed-poster", 1},
                                     Example{"two-cards-a4", 2}, Example{"tea-carton", 0}}) {
    const std::string marked = scratch.file(name);
    runHost({"marks", CORVANE_EXAMPLES "/" + name + ".svg", "-o", marked});
    const ProcessResult run = runHost({"info", "--check", "--json", marked});
    EXPECT_EQ(run.code, layers == 0 ? 0 : 3) << run.err;
    std::vector<std::string> found;
    for (const json& finding : json::parse(run.out)["findings"].get<json::array_t>()) {
      found.push_back(finding["kind"]);
    }
    EXPECT_EQ(found, std::vector<std::string>(layers, "near-miss-name")) << name;
  }
}

}  // namespace
}  // namespace host
