// The application's own panels, used with mouse and keys: layers, swatches and artboards.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDockWidget>
#include <QListView>
#include <QMenu>
#include <QToolButton>
#include <QtTest/QTest>

#include "OpenDrawing.h"
#include "WindowWorld.h"

namespace host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr char kDrawing[] =
    "<svg xmlns='http://www.w3.org/2000/svg' xmlns:inkscape='http://www.inkscape.org/namespaces/inkscape'"
    " xmlns:sodipodi='http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd'"
    " xmlns:ch='urn:x-corvane-host:drawing:1' width='210mm' height='297mm' viewBox='0 0 210 297'>\n"
    "<sodipodi:namedview><inkscape:page x='0' y='0' width='210' height='297'/>"
    "<inkscape:page x='230' y='0' width='90' height='50.5' inkscape:label='Card'/></sodipodi:namedview>\n"
    "<metadata><ch:swatches><ch:color name='Cut' definition='cmyk(0 1 0 0)' spot='true'/>"
    "<ch:group name='Table' kind='0'/><ch:swatch name='Black' paint='gray(1)'/>"
    "<ch:swatch name='Cut' paint=\"custom('Cut' 0)\" group='1'/></ch:swatches></metadata>\n"
    "<g inkscape:groupmode='layer' inkscape:label='Bottom'><rect width='50' height='50'/></g>\n"
    "<g inkscape:groupmode='layer' inkscape:label='Middle'><rect x='60' width='50' height='50'/>"
    "<rect x='60' y='60' width='9' height='9' sodipodi:insensitive='true'/></g>\n"
    "<g inkscape:groupmode='layer' inkscape:label='Top'><rect x='120' width='50' height='50'/></g>\n"
    "</svg>\n";

// Pixels from the left of a row of the layers.
constexpr int kEye = 10;
constexpr int kLock = 32;
constexpr int kTitle = 80;

class WindowHostPanelTest : public WindowTest {
 protected:
  WindowHostPanelTest() {
    EXPECT_THAT(window.openFiles({file}), testing::IsEmpty());
    expand("Artboards");
    settle();
  }

  QDockWidget& dock(const std::string& name) {
    return *world.window->findChild<QDockWidget*>(QString::fromStdString("corvane-host " + name));
  }
  QListView& list(const std::string& name) { return *dock(name).findChild<QListView*>(); }
  void click(const std::string& name, const QString& button) {
    for (QToolButton* candidate : dock(name).findChildren<QToolButton*>()) {
      if (candidate->accessibleName().startsWith(button)) QTest::mouseClick(candidate, Qt::LeftButton);
    }
    settle();
  }
  void expand(const std::string& name) { click(name, "Expand"); }

  QPoint placeOf(QListView& list, const std::string& text, int x) {
    const QAbstractItemModel& model = *list.model();
    for (int row = 0; row < model.rowCount(); ++row) {
      const QModelIndex index = model.index(row, 0);
      if (index.data().toString().toStdString() != text) continue;
      list.scrollTo(index);
      return {x, list.visualRect(index).center().y()};
    }
    ADD_FAILURE() << "no row " << text;
    return {};
  }
  void press(const std::string& panel, const std::string& row, int x = kTitle,
             Qt::KeyboardModifiers modifiers = {}) {
    QListView& rows = list(panel);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, modifiers, placeOf(rows, row, x));
    settle();
  }
  void chooseInMenu(const std::string& panel, const std::string& command) {
    click(panel, "Menu of");
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
      if (shownText(action->text()) != command) continue;
      EXPECT_TRUE(action->isEnabled()) << command;
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
      return settle();
    }
    ADD_FAILURE() << "no command " << command;
  }

  ArtId artOf(const std::string& title) { return artOn(world.document(), title).back(); }
  // From the top down: "-" is hidden, "#" is locked, "*" is the current one, "." has selected art.
  std::vector<std::string> layers() {
    std::vector<std::string> texts;
    for (int row = 0; row < list("Layers").model()->rowCount(); ++row) {
      const QModelIndex index = list("Layers").model()->index(row, 0);
      std::string text = index.data().toString().toStdString();
      const QString spoken = index.data(Qt::AccessibleTextRole).toString();
      for (const auto& [word, sign] :
           {std::pair("hidden", '-'), {"locked", '#'}, {"current", '*'}, {"selected", '.'}}) {
        if (spoken.contains(word)) text += sign;
      }
      texts.push_back(text);
    }
    return texts;
  }

  const std::string file = scratch.write("layers.svg", kDrawing);
};

TEST_F(WindowHostPanelTest, LayersAreHiddenLockedMovedAndRenamedInStepsThatAreSaved) {
  world.document().setSelected(artOf("Middle"), true);
  window.refresh();
  EXPECT_THAT(layers(), ElementsAre("Top*", "Middle.", "Bottom"));
  press("Layers", "Bottom");
  EXPECT_THAT(layers(), ElementsAre("Top", "Middle.", "Bottom*"));
  EXPECT_FALSE(window.isWindowModified()) << "a choice is no edit";

  struct Row {
    std::function<void()> act;
    std::string step;
    std::vector<std::string> after;
  };
  QListView& rows = list("Layers");
  const std::vector<Row> table = {
      {[&] { press("Layers", "Middle", kEye); }, "Hide Layer", {"Top", "Middle-", "Bottom*"}},
      {[&] { press("Layers", "Middle", kEye); }, "Show Layer", {"Top", "Middle", "Bottom*"}},
      {[&] { press("Layers", "Top", kLock); }, "Lock Layer", {"Top#", "Middle", "Bottom*"}},
      {[&] { press("Layers", "Top", kEye, Qt::AltModifier); },
       "Hide Other Layers",
       {"Top#", "Middle-", "Bottom-*"}},
      {[&] { press("Layers", "Top", kEye, Qt::AltModifier); },
       "Show All Layers",
       {"Top#", "Middle", "Bottom*"}},
      {[&] { QTest::keyClick(&rows, Qt::Key_Up, Qt::AltModifier); },
       "Move Layer",
       {"Top#", "Bottom*", "Middle"}},
      {[&] {
         QTest::mousePress(rows.viewport(), Qt::LeftButton, {}, placeOf(rows, "Top", kTitle));
         const QPoint below = placeOf(rows, "Middle", kTitle) + QPoint(0, 15);
         QMouseEvent move(QEvent::MouseMove, below, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
         QApplication::sendEvent(rows.viewport(), &move);
         QTest::mouseRelease(rows.viewport(), Qt::LeftButton, {}, below);
       },
       "Move Layer",
       {"Bottom", "Middle", "Top#*"}},
      {[&] { QTest::keyClick(&rows, Qt::Key_Space); }, "Hide Layer", {"Bottom", "Middle", "Top-#*"}},
      {[&] {
         QTest::keyClick(&rows, Qt::Key_F2);
         QTest::keyClicks(QApplication::focusWidget(), "Bait & <b>");
         QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
       },
       "Rename Layer",
       {"Bottom", "Middle", "Bait & <b>-#*"}},
      {[&] { chooseInMenu("Layers", "New Layer"); },
       "New Layer",
       {"Bottom", "Middle", "Layer 4*", "Bait & <b>-#"}},
      {[&] {
         press("Layers", "Bottom");
         chooseInMenu("Layers", "Delete Layer");
       },
       "Delete Layer",
       {"Middle*", "Layer 4", "Bait & <b>-#"}},
  };
  for (const Row& row : table) {
    row.act();
    settle();
    EXPECT_EQ(world.document().undoName(), row.step);
    EXPECT_EQ(layers(), row.after) << row.step;
  }

  world.press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(window.isWindowModified());
  const SvgDrawing saved = drawingOf(readText(file));
  std::vector<std::string> titles;
  for (const LayerId id : saved.document->state().layers) {
    const Layer& read = *saved.document->layer(id);
    titles.push_back(read.title + (read.visible ? "" : "-") + (read.editable ? "" : "#"));
  }
  EXPECT_THAT(titles, ElementsAre("Middle", "Layer 4", "Bait & <b>-#"));

  for (std::size_t i = 0; i < table.size(); ++i) world.press(Qt::Key_Z, Qt::ControlModifier);
  settle();
  EXPECT_THAT(layers(), ElementsAre("Top", "Middle.", "Bottom*")) << "with what was selected";
}

TEST_F(WindowHostPanelTest, SwatchesPaintWhatIsSelected) {
  QListView& rows = list("Swatches");
  const QAbstractItemModel& model = *rows.model();
  ASSERT_EQ(model.rowCount(), 3);
  EXPECT_EQ(model.index(1, 0).data().toString(), "Table");
  EXPECT_EQ(model.flags(model.index(1, 0)), Qt::NoItemFlags);
  EXPECT_EQ(model.index(2, 0).data(Qt::ToolTipRole).toString(), "Cut<br>Spot color<br>CMYK 0, 100, 0, 0");

  press("Swatches", "Cut", 40);
  QTest::keyClick(&rows, Qt::Key_Return);
  EXPECT_EQ(world.document().undoName(), "") << "nothing is selected";
  world.document().setSelected(artOf("Top"), true);
  QTest::keyClick(&rows, Qt::Key_Return);
  settle();
  EXPECT_EQ(world.document().undoName(), "Apply Swatch");
  press("Swatches", "Black", 40);
  chooseInMenu("Swatches", "Apply to Fill");
  world.press(Qt::Key_S, Qt::ControlModifier);
  const SvgDrawing saved = drawingOf(readText(file));
  const LayerId top = saved.document->state().layers.front();
  const AIPathStyle& style =
      *saved.document->styleOf(saved.document->art(saved.document->layer(top)->root)->firstChild);
  EXPECT_EQ(style.stroke.color.kind, kCustomColor);
  EXPECT_EQ(style.strokePaint, 1);
  EXPECT_EQ(style.fill.color.kind, kGrayColor);

  world.document().setSelected(artOf("Top"), false);
  press("Swatches", "Cut", 40);
  chooseInMenu("Swatches", "Select Same Stroke Color");
  EXPECT_THAT(world.document().selection(), ElementsAre(artOf("Top")));
  press("Layers", "Middle");
  chooseInMenu("Layers", "Select All on Layer");
  EXPECT_EQ(world.document().selectedCount(), 1U) << "what is locked stays out";
  EXPECT_FALSE(window.isWindowModified()) << "selecting is no edit";
}

TEST_F(WindowHostPanelTest, AnArtboardIsChosenAndFitted) {
  const QAbstractItemModel& model = *list("Artboards").model();
  EXPECT_EQ(model.index(0, 0).data(Qt::AccessibleTextRole).toString(), "Artboard 1, 210 × 297 mm, active");
  press("Artboards", "Card", 20);
  EXPECT_EQ(world.document().state().activeArtboard, 1U);
  EXPECT_EQ(model.index(1, 0).data(Qt::AccessibleTextRole).toString(), "Card, 90 × 50.5 mm, active");
  EXPECT_FALSE(window.isWindowModified());
  QListView& rows = list("Artboards");
  QTest::mouseDClick(rows.viewport(), Qt::LeftButton, {}, placeOf(rows, "Card", 20));
  settle();
  const AIRealRect shown = world.host.documents().current()->view.bounds();
  const AIRealRect& card = world.document().state().artboards[1].position;
  EXPECT_NEAR((shown.left + shown.right) / 2, (card.left + card.right) / 2, 1);
  EXPECT_LT(shown.right - shown.left, 2 * (card.right - card.left));
}

TEST_F(WindowHostPanelTest, ComeBackAsTheyWereAndLeaveRoomForTheDrawing) {
  window.resize(900, 600);
  settle();
  EXPECT_EQ(window.size(), QSize(900, 600));
  EXPECT_GT(window.centralWidget()->width(), 600);
  world.choose({"Window", "Swatches"});
  click("Layers", "Collapse");
  EXPECT_TRUE(window.close());
  world.window.emplace(world.host, world.session, FileChooser{});
  world.window->show();
  settle();
  EXPECT_FALSE(dock("Swatches").isVisible());
  EXPECT_TRUE(dock("Layers").isVisible());
  EXPECT_FALSE(list("Layers").isVisible());
  EXPECT_TRUE(list("Artboards").isVisible());
  EXPECT_THAT(world.menuTree(), HasSubstr(", Layers [x], Swatches, Artboards [x], "));
}

}  // namespace
}  // namespace host
