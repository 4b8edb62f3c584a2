// The host's pickers, used with mouse and keys.
#include "Pickers.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QListWidget>
#include <QTabBar>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>
#include <memory>
#include <optional>

#include "Document.h"
#include "Handles.h"
#include "Host.h"
#include "HostWindow.h"
#include "OffscreenApplication.h"
#include "PaintComponents.h"
#include "PaintPicker.h"
#include "QtManager.h"
#include "RGBPicker.h"

namespace host {
namespace {

constexpr AIReal kThird = 1.0 / 3;
const AIColor kThirds = paintOf(kThreeColor, {kThird, kThird, 2 * kThird});

void type(QWidget& picker, const char* field, const char* number) {
  for (QDoubleSpinBox* box : picker.findChildren<QDoubleSpinBox*>()) {
    if (box->accessibleName() != field || !box->isVisible()) continue;
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, number);
  }
}

void turnTo(QWidget& picker, int page) {
  auto& bar = *picker.findChild<QTabBar*>();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
}

QListWidget& listOf(const QWidget& picker) {
  return *picker.findChild<QListWidget*>();
}

QPoint middleOf(QListWidget& list, const char* row) {
  return list.visualItemRect(list.findItems(row, Qt::MatchExactly).value(0)).center();
}

void click(QWidget& picker, const char* row) {
  QListWidget& list = listOf(picker);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middleOf(list, row));
}

class PickersTest : public testing::Test {
 protected:
  PickersTest() {
    pickers.emplace(host, window);
    document->startRecording();
    AICustomColor magenta{};
    magenta.c.f = {0, 1, 0, 0};
    magenta.flag = kCustomSpotColor;
    cut.kind = kCustomColor;
    cut.c.c.color = makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document->serial(),
                                                    document->addCustomColor("Cut", magenta));
    const SwatchGroupId group = document->addSwatchGroup(-1);
    document->editSwatchGroup(group).name = "Line types";
    document->addSwatch(group, cut, "Cut");
    document->addSwatch(0, paintOf(kThreeColor, {1, 0, 0}), "");
    host.documents().open(document, "drawing");
  }

  // `act` is what the user does with the picker that comes up; one that is left open is refused.
  template <typename Picker>
  static void whenUp(const std::function<void(Picker&)>& act) {
    QTimer::singleShot(0, [act] {
      auto* picker = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (picker == nullptr) return;
      EXPECT_EQ(RVADMQtManager::QtManager::DialogCount(), 1);
      EXPECT_TRUE(QTest::qWaitForWindowActive(picker));
      act(static_cast<Picker&>(*picker));
      if (picker->isVisible()) picker->QDialog::done(QDialog::Rejected);
    });
  }
  std::optional<AIColor> pick(const AIColor& before, const std::function<void(PaintPicker&)>& act) {
    whenUp(act);
    AIColor paint = before;
    const bool accepted = host.pickPaint(nullptr, paint);
    EXPECT_EQ(RVADMQtManager::QtManager::DialogCount(), 0);
    EXPECT_TRUE(accepted || isSamePaint(paint, before));
    return accepted ? std::optional(paint) : std::nullopt;
  }

  struct Application {
    // Inks are to look the same whatever profiles this machine has.
    Application() {
      for (const char* variable : {"XDG_DATA_DIRS", "XDG_DATA_HOME", "HOME"}) qputenv(variable, "/nowhere");
      ensureApplication();
    }
  };

  const Application application;  // ahead of the widgets
  Host host;
  QWidget window;
  std::optional<Pickers> pickers;
  std::shared_ptr<Document> document = std::make_shared<Document>();
  AIColor cut{};
};

void pressReturn(QWidget& picker) {
  QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
}

TEST_F(PickersTest, ThePaintIsWhatTheUserMadeOfIt) {
  AIColor none{}, thinCut = cut;
  none.kind = kNoneColor;
  thinCut.c.c.tint = 0.6;
  struct Row {
    const char* name;
    AIColor before, after;
    std::function<void(PaintPicker&)> act;
  };
  const Row table[] = {
      {"nothing", kThirds, kThirds, [](PaintPicker&) {}},
      {"one number of three", kThirds, paintOf(kThreeColor, {kThird, 0.2, 2 * kThird}),
       [](PaintPicker& picker) { type(picker, "Green", "51"); }},
      {"other pages and back", kThirds, kThirds,
       [](PaintPicker& picker) {
         for (const int page : {2, 3, 0, 1}) turnTo(picker, page);
       }},
      {"another kind of paint", paintOf(kFourColor, {0, 0, 0, 0.25}),
       paintOf(kThreeColor, {0.75, 0.75, 0.75}), [](PaintPicker& picker) { turnTo(picker, 1); }},
      {"gray in tenths", paintOf(kGrayColor, {0.25}), paintOf(kGrayColor, {0.125}),
       [](PaintPicker& picker) { type(picker, "Black", "12.5"); }},
      {"a swatch", none, cut, [](PaintPicker& picker) { click(picker, "Cut"); }},
      {"a tint of it", cut, thinCut, [](PaintPicker& picker) { type(picker, "Tint", "40"); }},
      {"a swatch by key", cut, paintOf(kThreeColor, {1, 0, 0}),
       [](PaintPicker& picker) { QTest::keyClick(&listOf(picker), Qt::Key_Up); }},
      {"none", cut, none, [](PaintPicker& picker) { QTest::keyClick(&listOf(picker), Qt::Key_Home); }},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    const auto picked = pick(row.before, [&](PaintPicker& picker) {
      row.act(picker);
      pressReturn(picker);
    });
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->kind, row.after.kind);
    const PaintComponents is = componentsOf(*picked).value_or(PaintComponents{picked->c.c.tint});
    const PaintComponents expected = componentsOf(row.after).value_or(PaintComponents{row.after.c.c.tint});
    for (std::size_t i = 0; i < is.size(); ++i) EXPECT_NEAR(is[i], expected[i], 1e-6) << i;
    const auto refused = pick(row.before, [&](PaintPicker& picker) {
      row.act(picker);
      QTest::keyClick(&picker, Qt::Key_Escape);
    });
    EXPECT_FALSE(refused);
  }
}

TEST_F(PickersTest, AnRGBColourKeepsTheBitsThatTheDialogDoesNotShow) {
  AIRGBColor color{0x1234, 0x8001, 0xFFFE};
  std::string title;
  whenUp<RGBPicker>([&](RGBPicker& picker) {
    title = picker.windowTitle().toStdString();
    picker.setCurrentColor(QColor(0x12, 0x40, 0xFF));
    pressReturn(picker);
  });
  EXPECT_TRUE(host.pickRGBColor("Mark", color));
  EXPECT_EQ(title, "Mark");
  EXPECT_EQ(color.red, 0x1234);
  EXPECT_EQ(color.green, 0x4040);
  EXPECT_EQ(color.blue, 0xFFFE);
  whenUp<RGBPicker>([](RGBPicker& picker) {
    EXPECT_FALSE(picker.windowTitle().isEmpty());
    picker.setCurrentColor(Qt::red);
    QTest::keyClick(&picker, Qt::Key_Escape);
  });
  EXPECT_FALSE(host.pickRGBColor("", color));
  EXPECT_EQ(color.green, 0x4040);
}

TEST_F(PickersTest, APickerMayGoWithWhatItStandsOver) {
  auto* below = new QDialog;
  setHostWindow(below);
  QTimer::singleShot(0, [&] { delete below; });
  AIColor paint = kThirds;
  EXPECT_FALSE(host.pickPaint(nullptr, paint));
  setHostWindow(nullptr);
}

}  // namespace
}  // namespace host
