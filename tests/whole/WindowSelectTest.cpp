// The application's own tools, used in the window with mouse and keys.
#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QtTest/QTest>

#include "DrawingView.h"
#include "InfoDisplay.h"
#include "Recorder.h"
#include "SelectionColor.h"
#include "WindowWorld.h"

namespace host {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kAlt = Qt::AltModifier;

// Squares of 100 pt: "a", a group of "b" and the outline "c", "d" painted like "c", and one that is locked.
const char kSquares[] =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" "
    "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" "
    "xmlns:sodipodi=\"http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd\" "
    "width=\"600pt\" height=\"800pt\" viewBox=\"0 0 600 800\">\n"
    "<g inkscape:groupmode=\"layer\" inkscape:label=\"Work\">\n"
    "<rect inkscape:label=\"a\" x=\"50\" y=\"50\" width=\"100\" height=\"100\" fill=\"#f00\"/>\n"
    "<g><rect inkscape:label=\"b\" x=\"200\" y=\"50\" width=\"100\" height=\"100\" fill=\"#0f0\"/>\n"
    "<rect inkscape:label=\"c\" x=\"350\" y=\"50\" width=\"100\" height=\"100\" fill=\"none\" "
    "stroke=\"#123456\" stroke-width=\"4\"/></g>\n"
    "<rect inkscape:label=\"d\" x=\"350\" y=\"250\" width=\"100\" height=\"100\" fill=\"#eee\" "
    "stroke=\"#123456\" stroke-width=\"1\"/>\n</g>\n"
    "<g inkscape:groupmode=\"layer\" inkscape:label=\"Locked\" sodipodi:insensitive=\"true\">\n"
    "<rect inkscape:label=\"locked\" x=\"50\" y=\"400\" width=\"100\" height=\"100\" fill=\"#00f\"/></g>\n"
    "</svg>\n";

class WindowSelectTest : public WindowTest {
 protected:
  WindowSelectTest() {
    window.resize(1100, 900);
    window.openFiles({scratch.write("squares.svg", kSquares)});
    settle();
  }

  QWidget& view() { return world.view(); }
  View& shown() { return world.host.documents().current()->view; }
  // Of a point as the file counts them, y down.
  QPoint pixel(double x, double y) {
    const AIRealPoint at = shown().toPixels({x, 800 - y});
    return QPointF(at.x, at.y).toPoint();
  }
  void click(double x, double y, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(&view(), Qt::LeftButton, modifiers, pixel(x, y));
  }
  void move(const QPoint& to, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = {}) {
    world.movePointer(to, held, modifiers);
  }
  void drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mousePress(&view(), Qt::LeftButton, modifiers, from);
    move((from + to) / 2, Qt::LeftButton, modifiers);
    move(to, Qt::LeftButton, modifiers);
    QTest::mouseRelease(&view(), Qt::LeftButton, modifiers, to);
  }
  void key(Qt::Key key) { QTest::keyClick(&view(), key); }

  std::vector<std::string> selected() {
    std::vector<std::string> names;
    for (const ArtId id : world.document().selection()) names.push_back(world.document().art(id)->name);
    return names;
  }
  std::string chosenTool() { return world.host.tools().selected()->name; }
  std::string info() {
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (dynamic_cast<const InfoDisplay*>(label) != nullptr) return label->text().toStdString();
    }
    return "no display";
  }
  int selectionPixels() {
    const QImage image = view().grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == kSelectionColor;
    }
    return count;
  }
};

TEST_F(WindowSelectTest, ClicksAndFramesSelect) {
  const struct {
    const char* what;
    std::function<void()> action;
    std::vector<std::string> selected;
  } steps[] = {
      {"a click", [&] { click(100, 100); }, {"a"}},
      {"the outermost group", [&] { click(250, 100); }, {"b", "c"}},
      {"the very object", [&] { click(250, 100, kAlt); }, {"b"}},
      {"one more", [&] { click(100, 100, kShift); }, {"a", "b"}},
      {"one less", [&] { click(100, 100, kShift); }, {"b"}},
      {"nothing more", [&] { click(550, 700, kShift); }, {"b"}},
      {"inside of a mere outline", [&] { click(400, 100); }, {}},
      {"just beside it", [&] { click(453, 100, kAlt); }, {"c"}},
      {"through what is locked", [&] { click(100, 450); }, {}},
      {"a frame", [&] { drag(pixel(20, 60), pixel(220, 70)); }, {"a", "b", "c"}},
      {"a frame backwards", [&] { drag(pixel(220, 70), pixel(20, 60), kAlt); }, {"a", "b"}},
      {"another frame", [&] { drag(pixel(340, 240), pixel(360, 380), kShift); }, {"a", "b", "d"}},
      {"a frame given up",
       [&] {
         QTest::mousePress(&view(), Qt::LeftButton, {}, pixel(340, 240));
         move(pixel(600, 700), Qt::LeftButton);
         key(Qt::Key_Escape);
         QTest::mouseRelease(&view(), Qt::LeftButton, {}, pixel(600, 700));
       },
       {"a", "b", "d"}},
      {"about what is locked", [&] { drag(pixel(20, 380), pixel(300, 600)); }, {}},
      {"all",
       [&] {
         world.choose({"Edit", "Select All"});
       },
       {"a", "b", "c", "d"}},
      {"Escape", [&] { key(Qt::Key_Escape); }, {}},
  };
  for (const auto& step : steps) {
    step.action();
    EXPECT_THAT(selected(), testing::UnorderedElementsAreArray(step.selected)) << step.what;
  }
  EXPECT_FALSE(window.isWindowModified());
  EXPECT_EQ(world.document().undoCount(), 0U);
}

TEST_F(WindowSelectTest, WhatIsSelectedIsSeenAndMeasured) {
  const int without = selectionPixels();
  click(100, 100);
  EXPECT_THAT(info(), testing::StartsWith("1 object, 100.00 \u00d7 100.00 pt   X "));
  EXPECT_GT(selectionPixels(), without + 300 * shown().zoom()) << "an outline of 400 pt";
  click(250, 100, kShift);
  EXPECT_THAT(info(), testing::StartsWith("3 objects, 400.00 \u00d7 100.00 pt   X "));
  world.press(Qt::Key_4, Qt::AltModifier);
  ASSERT_THAT(chosenTool(), testing::HasSubstr("Round Mark Tool"));
  EXPECT_EQ(selectionPixels(), without) << "the tools of plug-ins draw for themselves";
  key(Qt::Key_V);
  EXPECT_EQ(chosenTool(), "Select");
  EXPECT_GT(selectionPixels(), without);
  move(pixel(300, 500), Qt::NoButton);
  EXPECT_THAT(info(), testing::MatchesRegex(".*   X (299|300)\\.[0-9]+ pt   Y (299|300)\\.[0-9]+ pt"));
  QEvent leaving(QEvent::Leave);
  QApplication::sendEvent(&view(), &leaving);
  EXPECT_EQ(info(), "3 objects, 400.00 \u00d7 100.00 pt");
}

TEST_F(WindowSelectTest, CommandsOfTheMenuWorkOnTheSelection) {
  click(453, 100, kAlt);
  world.choose({"Edit", "Same Stroke Color"});
  EXPECT_THAT(selected(), UnorderedElementsAre("c", "d"));
  world.choose({"Edit", "Select Inverse"});
  EXPECT_THAT(selected(), UnorderedElementsAre("a", "b"));
  world.choose({"Edit", "Delete"});
  EXPECT_THAT(selected(), IsEmpty());
  EXPECT_EQ(world.document().undoName(), "Delete");
  EXPECT_TRUE(window.isWindowModified());
  click(400, 300);
  world.press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_THAT(selected(), UnorderedElementsAre("a", "b"));
  EXPECT_FALSE(window.isWindowModified());
  world.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(WindowSelectTest, TheHandTakesTheDrawingAlong) {
  key(Qt::Key_H);
  EXPECT_EQ(chosenTool(), "Pan");
  move(pixel(100, 100), Qt::NoButton);
  EXPECT_EQ(view().cursor().shape(), Qt::OpenHandCursor);
  const QPoint before = pixel(100, 100);
  QTest::mousePress(&view(), Qt::LeftButton, {}, before);
  EXPECT_EQ(view().cursor().shape(), Qt::ClosedHandCursor);
  for (const QPoint step : {QPoint(10, 5), QPoint(70, -40)}) move(before + step, Qt::LeftButton);
  QTest::mouseRelease(&view(), Qt::LeftButton, {}, before + QPoint(70, -40));
  EXPECT_EQ(view().cursor().shape(), Qt::OpenHandCursor);
  EXPECT_EQ(pixel(100, 100), before + QPoint(70, -40));
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(WindowSelectTest, TheMagnifierZoomsAboutThePointer) {
  key(Qt::Key_Z);
  EXPECT_EQ(chosenTool(), "Zoom");
  const QPoint place = pixel(250, 100);
  const double zoom = shown().zoom();
  const struct {
    Qt::KeyboardModifiers modifiers;
    double zoom;
  } clicks[] = {{{}, 2 * zoom}, {{}, 4 * zoom}, {kAlt, 2 * zoom}};
  for (const auto& row : clicks) {
    QTest::mouseClick(&view(), Qt::LeftButton, row.modifiers, place);
    EXPECT_NEAR(shown().zoom(), row.zoom, 1e-9);
    EXPECT_LE((pixel(250, 100) - place).manhattanLength(), 2 * shown().zoom() / zoom);
  }
  drag(pixel(200, 50), pixel(300, 150));
  const AIRealRect bounds = shown().bounds();
  EXPECT_LT(bounds.left, 201);
  EXPECT_GT(bounds.right, 299);
  EXPECT_LT(bounds.bottom, 651);
  EXPECT_GT(bounds.top, 749);
  EXPECT_LT(std::min(bounds.right - bounds.left, bounds.top - bounds.bottom), 120);
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(WindowSelectTest, VeryManyOutlinesFollowTheView) {
  std::string squares = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"600pt\" height=\"800pt\">\n";
  for (int i = 0; i < 5040; ++i) {
    squares += "<rect x=\"" + std::to_string(i % 60 * 10) + "\" y=\"" + std::to_string(i / 60 * 10) +
               "\" width=\"7\" height=\"7\"/>\n";
  }
  window.openFiles({scratch.write("many.svg", squares + "</svg>\n")});
  auto& many = static_cast<DrawingView&>(view());
  world.press(Qt::Key_A, Qt::ControlModifier);
  ASSERT_EQ(world.document().selectedCount(), 5040U);
  const int before = selectionPixels();
  EXPECT_GT(before, 50000);
  many.panBy({200, 100});
  const int moved = selectionPixels();
  EXPECT_LT(moved, before) << "what came into view is bare for a moment";
  EXPECT_GT(moved, before / 4);
  many.zoomTo(3 * many.zoom());
  QTest::qWait(200);
  const QImage rested = view().grab().toImage();
  key(Qt::Key_Escape);
  world.press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(view().grab().toImage() == rested) << "as if it had been selected there";
}

TEST(SelectionNotices, ComeOnceAnAction) {
  WindowWorld world({testBundle("Recorder")});
  const ScratchFolder scratch;
  world.window->openFiles({scratch.write("squares.svg", kSquares)});
  QWidget& view = world.view();
  const auto at = [&](double x, double y) {
    const AIRealPoint pixels = world.host.documents().current()->view.toPixels({x, 800 - y});
    return QPointF(pixels.x, pixels.y).toPoint();
  };
  const std::string selection =
      "AI Notifier | AI Art Selection Changed Notifier\nAI Notifier | AI Art Properties Changed Notifier\n";
  const std::string properties = "AI Notifier | AI Art Properties Changed Notifier\n";
  const auto click = [&](double x, double y) { QTest::mouseClick(&view, Qt::LeftButton, {}, at(x, y)); };
  const struct {
    const char* what;
    std::function<void()> action;
    std::string told;
  } steps[] = {
      {"a group", [&] { click(250, 100); }, selection},
      {"the same again", [&] { click(250, 100); }, ""},
      {"an edit",
       [&] {
         world.session.edit("Name", [](Document& d) { d.setName(1, "x"); });
         world.window->refresh();
       },
       properties},
      {"undo", [&] { world.press(Qt::Key_Z, Qt::ControlModifier); }, properties},
      {"nothing selected any more", [&] { click(550, 700); }, selection},
  };
  for (const auto& step : steps) {
    takeRecorded();
    step.action();
    EXPECT_EQ(takeRecorded(), step.told) << step.what;
  }
}

}  // namespace
}  // namespace host
