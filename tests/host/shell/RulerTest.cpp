#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QtTest/QTest>
#include <algorithm>
#include <cmath>

#include "CanvasFixture.h"
#include "Ruler.h"
#include "RulerTicks.h"
#include "RulerUnits.h"

namespace host {
namespace {

double sixAMark(const std::string& text) {
  return 6.0 * static_cast<double>(text.size());
}

// The first two numbers that lie on the ruler, and how many ticks they are apart.
struct Numbers {
  std::string first, second;
  double at, distance;
  int parts;
};

Numbers numbersOf(const RulerSpan& span) {
  Numbers found{};
  std::vector<RulerTick> ticks = rulerTicks(span, sixAMark);
  std::sort(ticks.begin(), ticks.end(), [](const RulerTick& a, const RulerTick& b) { return a.at < b.at; });
  for (const RulerTick& tick : ticks) {
    if (tick.at < 0) continue;
    if (!found.first.empty()) ++found.parts;
    if (tick.size != TickSize::Numbered) continue;
    if (found.first.empty()) {
      found.first = tick.text;
      found.at = tick.at;
    } else {
      found.second = tick.text;
      found.distance = tick.at - found.at;
      break;
    }
  }
  return found;
}

TEST(RulerTicks, AreRoundNumbersThatKeepApart) {
  const struct {
    RulerSpan span;
    Numbers expected;
  } table[] = {
      {{0, 1, 500}, {"0", "50", 0, 50, 5}},
      {{841.9, -1, 500}, {"800", "750", 41.9, 50, 5}},
      {{100, 0.02, 500}, {"100", "101", 0, 50, 10}},
      {{1e6 + 0.5, 0.0003, 500}, {"1000000.50", "1000000.55", 0, 166.667, 5}},
      {{0, 2000, 500}, {"0", "200000", 0, 100, 4}},
  };
  for (const auto& row : table) {
    SCOPED_TRACE(row.expected.first + " " + row.expected.second);
    const Numbers found = numbersOf(row.span);
    EXPECT_EQ(found.first, row.expected.first);
    EXPECT_EQ(found.second, row.expected.second);
    EXPECT_NEAR(found.at, row.expected.at, 0.01);
    EXPECT_NEAR(found.distance, row.expected.distance, 0.01);
    EXPECT_EQ(found.parts, row.expected.parts);
  }
  for (const RulerSpan& none : {RulerSpan{0, 0, 500}, RulerSpan{0, 1, 0}, RulerSpan{1e300, 1e-300, 500},
                                RulerSpan{std::nan(""), 1, 500}, RulerSpan{0, INFINITY, 500}}) {
    EXPECT_TRUE(rulerTicks(none, sixAMark).empty());
  }
}

TEST(Ruler, CountsInTheUnitsOfTheDocument) {
  const struct {
    AIRulerUnits units;
    double scale, zoom;
    double first, perPixel;  // expected along the upper edge
  } table[] = {
      {kPixelRuler, 1, 4, 100, 0.25},
      {kMillimeterRuler, 1, 2, 100 * 25.4 / 72, 25.4 / 144},
      {kMillimeterRuler, 10, 2, 1000 * 25.4 / 72, 25.4 / 144},
      {kPicaRuler, 10, 0.5, 1000 / 12.0, 1 / 6.0},
  };
  for (const auto& row : table) {
    Document document;
    document.setScale(row.scale);
    document.setRulerUnits(row.units);
    View view(row.scale);
    view.setViewport(400, 300);
    view.setZoom(row.zoom);
    view.moveBy(view.toPixels({100, 70}));
    const RulerSpan across = rulerSpan(Qt::Horizontal, view, document);
    const RulerSpan down = rulerSpan(Qt::Vertical, view, document);
    EXPECT_NEAR(across.first, row.first, 1e-9);
    EXPECT_NEAR(across.perPixel, row.perPixel, 1e-9);
    EXPECT_EQ(across.length, 400);
    EXPECT_NEAR(down.first, row.first * 0.7, 1e-9);
    EXPECT_NEAR(down.perPixel, -row.perPixel, 1e-9) << "upwards";
    EXPECT_EQ(down.length, 300);
  }
}

TEST(Ruler, OffersUnitsAndGoesAway) {
  OpenCanvas canvas("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"50mm\" height=\"50mm\"/>", {400, 300});
  EXPECT_EQ(canvas.view().size(), QSize(400, 300));
  canvas.frame->showRulers(true);
  QCoreApplication::processEvents();
  const QPoint corner(Ruler::thickness(), Ruler::thickness());
  EXPECT_EQ(canvas.view().pos(), corner);
  EXPECT_EQ(canvas.frame->findChild<QLabel*>()->text(), "mm");
  std::string checked;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* action : menu->actions()) {
      if (action->isChecked()) checked += action->text().toStdString();
      if (action->text() == "Inches")
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }
  });
  QWidget* ruler = canvas.frame->childAt(200, 3);
  ASSERT_NE(ruler, nullptr);
  QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, ruler->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(ruler, &click);
  EXPECT_EQ(checked, "Millimeters");
  ASSERT_EQ(canvas.chosen.size(), 1U);
  EXPECT_EQ(canvas.chosen[0], kInchRuler);
}

}  // namespace
}  // namespace host
