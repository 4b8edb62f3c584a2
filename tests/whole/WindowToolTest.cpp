// Tools of the plug-in, used in the window with mouse and keys.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolButton>
#include <QtTest/QTest>

#include "Bounds.h"
#include "PluginPictures.h"
#include "QtManager.h"
#include "Theme.h"
#include "WindowWorld.h"

namespace host {
namespace {

constexpr AIToolType kRound = 3;  // behind Select, Pan and Zoom
constexpr AIToolType kCross = 4;
constexpr QRgb kSquareColor = qRgb(255, 0, 0);

// Answers whatever comes up with a key.
class Answering {
 public:
  explicit Answering(Qt::Key key) {
    QObject::connect(&timer_, &QTimer::timeout, [key] {
      if (QWidget* modal = QApplication::activeModalWidget()) QTest::keyClick(modal, key);
    });
    timer_.start(5);
  }

 private:
  QTimer timer_;
};

QImage asShown(const QImage& image) {
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// Counts the events that tell a widget of a change of the theme.
class ThemeChanges : public QObject {
 public:
  explicit ThemeChanges(QObject& widget) { widget.installEventFilter(this); }
  int count() const { return count_; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == RVADMQtManager::kThemeChangedEvent) ++count_;
    return false;
  }

 private:
  int count_ = 0;
};

// Gathers what is painted of a widget.
class PaintedRegion : public QObject {
 public:
  explicit PaintedRegion(QObject& widget) { widget.installEventFilter(this); }
  const QRegion& region() const { return region_; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QRegion region_;
};

template <typename Chosen>
QRect boundsWhere(const QImage& image, const Chosen& chosen) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (chosen(x, y)) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

class WindowToolTest : public WindowTest {
 protected:
  WindowToolTest() { window.openFiles({scratch.write("square.svg", squareOnPage())}); }
  ~WindowToolTest() override { setTheme(Theme::Light); }

  const ToolRecord& tool(AIToolType number) { return *world.host.tools().byNumber(number); }
  const ToolRecord* selected() { return world.host.tools().selected(); }
  // The place that shows the tool; null if none does.
  QToolButton* place(AIToolType number) {
    for (QToolButton* button : window.findChildren<QToolButton*>()) {
      if (button->accessibleName().toStdString() == tool(number).title) return button;
    }
    return nullptr;
  }
  void choose(AIToolType number) { QTest::mouseClick(place(number), Qt::LeftButton); }

  QWidget& view() { return *window.findChild<QTabWidget*>()->currentWidget()->focusProxy(); }
  QImage picture() { return view().grab().toImage(); }
  QRect square() {
    const QImage shown = picture();
    return boundsWhere(shown, [&](int x, int y) { return shown.pixel(x, y) == kSquareColor; });
  }
  void click(const QPoint& pixel) { QTest::mouseClick(&view(), Qt::LeftButton, {}, pixel); }
  void moveTo(const QPoint& pixel) {
    QMouseEvent move(QEvent::MouseMove, pixel, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&view(), &move);
  }
  std::string info() { return window.statusBar()->findChild<QLabel*>()->text().toStdString(); }

  // Centres of the marks from the bottom up.
  std::vector<AIRealPoint> marks() {
    std::vector<AIRealPoint> found;
    const Document& document = world.document();
    for (const LayerId id : document.state().layers) {
      if (document.layer(id)->title != "Regmark") continue;
      const Art& root = *document.art(document.layer(id)->root);
      for (ArtId art = root.lastChild; art != 0; art = document.art(art)->above) {
        const AIRealRect box = artBounds(document, art, nullptr, 0);
        found.push_back({(box.left + box.right) / 2, (box.bottom + box.top) / 2});
      }
    }
    return found;
  }
  QImage iconFile(AIToolType number, Theme theme) {
    const bool dark = theme == Theme::Dark;
    const auto file = world.host.pictures(tool(number).plugin)
                          .picture(dark ? tool(number).darkIcon : tool(number).lightIcon, {dark, false});
    return asShown(QImage(QString::fromStdString(file.value_or(""))));
  }
  QImage iconShown(AIToolType number) { return asShown(place(number)->icon().pixmap(20, 20).toImage()); }
};

TEST_F(WindowToolTest, TheArrowIsChosenFirst) {
  ASSERT_NE(place(0), nullptr);
  EXPECT_TRUE(place(0)->isChecked());
  EXPECT_EQ(tool(0).name, "Select");
  ASSERT_NE(place(kRound), nullptr);
  EXPECT_EQ(place(kCross), nullptr) << "both tools share a place";
  EXPECT_FALSE(place(kRound)->isChecked());
  EXPECT_LT(place(0)->y(), place(kRound)->y());
  click(view().rect().center());
  EXPECT_TRUE(marks().empty());
  EXPECT_FALSE(window.isWindowModified());
}

TEST_F(WindowToolTest, AClickIsAMarkWhereItWasMade) {
  choose(kRound);
  EXPECT_TRUE(place(kRound)->isChecked());
  EXPECT_FALSE(place(0)->isChecked());
  double lastZoom = 0;
  for (const QSize& size : {QSize(700, 500), QSize(1300, 1100)}) {
    window.resize(size);
    QApplication::processEvents();
    const QImage before = picture();
    const QRect red = square();
    const double zoom = world.host.documents().current()->view.zoom();
    EXPECT_GT(zoom, lastZoom * 1.5);
    lastZoom = zoom;
    ASSERT_NEAR(red.width(), 200 * zoom, 3);
    click(red.topLeft());
    ASSERT_EQ(marks().size(), 1U);
    EXPECT_NEAR(marks()[0].x, 100, 1.5 / zoom);
    EXPECT_NEAR(marks()[0].y, 300, 1.5 / zoom);
    EXPECT_EQ(world.document().undoCount(), 1U);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_FALSE(picture() == before) << "the mark is seen";
    world.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(marks().empty());
    EXPECT_TRUE(picture() == before);
  }
}

TEST_F(WindowToolTest, DragsAndOtherButtonsMakeNoFurtherMarks) {
  choose(kRound);
  const QPoint from = square().center();
  QTest::mousePress(&view(), Qt::LeftButton, {}, from);
  QMouseEvent drag(QEvent::MouseMove, from + QPoint(40, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&view(), &drag);
  QTest::mouseRelease(&view(), Qt::LeftButton, {}, from + QPoint(40, 0));
  QTest::mouseClick(&view(), Qt::RightButton, {}, from);
  EXPECT_EQ(marks().size(), 1U);
  EXPECT_EQ(world.document().undoCount(), 1U);
}

TEST_F(WindowToolTest, WhileADialogIsUpNothingReachesTheTool) {
  choose(kRound);
  {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    click(square().center());
    choose(0);
  }
  EXPECT_TRUE(marks().empty());
  EXPECT_EQ(selected(), &tool(kRound));
  EXPECT_TRUE(place(kRound)->isChecked());
}

TEST_F(WindowToolTest, WhatThePluginSaysIsToldOnce) {
  choose(kRound);
  const QPoint where = square().center();
  click(where);
  for (const LayerId layer : world.document().state().layers)
    world.document().editLayer(layer).editable = false;
  const BoxAnswer answer(Qt::Key_Return);
  click(where);
  ASSERT_TRUE(answer.seen());
  EXPECT_EQ(answer.seen()->text, "Could not add regmarks because the regmark layer is locked or hidden.");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(marks().size(), 1U);
}

TEST_F(WindowToolTest, StripsLieAtTheLeftEdgeOfTheArtboard) {
  window.resize(1300, 1100);
  QApplication::processEvents();
  const QImage without = picture();
  choose(kRound);
  const QImage with = picture();
  const QRect strip =
      boundsWhere(with, [&](int x, int y) { return with.pixel(x, y) != without.pixel(x, y); });
  const View& shown = world.host.documents().current()->view;
  const AIRealPoint upperLeft = shown.toPixels({0, 800});
  const AIRealPoint lowerLeft = shown.toPixels({0, 0});
  EXPECT_NEAR(strip.right() + 1, upperLeft.x, 2);
  EXPECT_NEAR(strip.width(), 2 * shown.zoom(), 1);
  EXPECT_NEAR(strip.top(), upperLeft.y, 2);
  EXPECT_NEAR(strip.bottom() + 1, lowerLeft.y, 2);
  choose(0);
  EXPECT_TRUE(picture() == without);
}

TEST_F(WindowToolTest, OnlyWhatIsInvalidIsPaintedAnew) {
  QApplication::processEvents();
  picture();  // and no better one will come
  const PaintedRegion painted(view());
  world.host.onInvalidate(*world.host.documents().current(), {-5, 10, 30, 20});
  EXPECT_TRUE(painted.region().isEmpty()) << "later";
  QApplication::processEvents();
  EXPECT_TRUE(painted.region().boundingRect() == QRect(0, 10, 30, 10));
}

TEST_F(WindowToolTest, CursorAndDisplayFollowThePointer) {
  const QPoint centre = square().center();
  const auto isCentre =
      testing::MatchesRegex("X (19[89]|20[01])\\.[0-9][0-9] pt   Y (19[89]|20[01])\\.[0-9][0-9] pt");
  moveTo(centre);
  EXPECT_EQ(view().cursor().shape(), Qt::ArrowCursor);
  EXPECT_THAT(info(), isCentre);
  choose(kRound);
  EXPECT_EQ(info(), "") << "the tool has said nothing yet";
  moveTo(centre);
  const auto file = world.host.pictures(tool(kRound).plugin).picture(16221, {});
  ASSERT_TRUE(file);
  EXPECT_TRUE(asShown(view().cursor().pixmap().toImage()) == asShown(QImage(QString::fromStdString(*file))));
  EXPECT_EQ(view().cursor().hotSpot(), QPoint(16, 16));
  EXPECT_THAT(info(), isCentre);
  choose(0);
  moveTo(centre);
  EXPECT_EQ(view().cursor().shape(), Qt::ArrowCursor);
  QEvent leaving(QEvent::Leave);
  QApplication::sendEvent(&view(), &leaving);
  EXPECT_EQ(info(), "");
}

TEST_F(WindowToolTest, CursorsAreAsSharpAsTheDisplay) {
  const ResourceTable& pictures = world.host.pictures(tool(kRound).plugin);
  for (const int ratio : {1, 2}) {
    const QCursor cursor = pictureCursor(pictures, 16223, ratio);
    EXPECT_EQ(cursor.pixmap().size(), QSize(32, 32) * ratio);
    EXPECT_EQ(cursor.pixmap().devicePixelRatio(), ratio);
    EXPECT_EQ(cursor.hotSpot(), QPoint(16, 16));
  }
  EXPECT_EQ(pictureCursor(pictures, 99, 2).shape(), Qt::CrossCursor);
}

TEST_F(WindowToolTest, KeysStepThroughAGroup) {
  const AIToolType steps[] = {kRound, kCross, kRound};
  for (const AIToolType number : steps) {
    world.press(Qt::Key_4, Qt::AltModifier);
    EXPECT_EQ(selected(), &tool(number));
    ASSERT_NE(place(number), nullptr);
    EXPECT_TRUE(place(number)->isChecked());
  }
  world.press(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(selected(), &tool(0));
  EXPECT_NE(place(kRound), nullptr) << "the group goes on showing its last tool";
}

TEST_F(WindowToolTest, ThePlaceOffersTheOthersOfItsGroup) {
  QToolButton& button = *place(kRound);
  const QPoint corner = button.rect().bottomRight() - QPoint(2, 2);
  const std::function<void()> ways[] = {
      [&] { QTest::mouseClick(&button, Qt::LeftButton, {}, corner); },
      [&] { QTest::mousePress(&button, Qt::LeftButton); },
      [&] { QTest::keyClick(&button, Qt::Key_Right); },
  };
  for (const auto& open : ways) {
    world.host.tools().select(tool(kRound).handle);  // as a plug-in may
    ASSERT_EQ(place(kRound), &button);
    EXPECT_TRUE(button.isChecked());
    std::vector<std::string> offered;
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      looking.stop();
      for (const QAction* action : menu->actions()) offered.push_back(action->text().toStdString());
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[1]).center());
    });
    looking.start(5);
    open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !offered.empty(); }));
    EXPECT_THAT(offered, testing::ElementsAre(tool(kRound).title, tool(kCross).title));
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(selected(), &tool(kCross));
    EXPECT_EQ(place(kCross), &button);
    EXPECT_TRUE(button.isChecked());
    EXPECT_TRUE(iconShown(kCross) == iconFile(kCross, Theme::Light));
  }
}

TEST_F(WindowToolTest, ADoubleClickRunsTheOptions) {
  Preferences& preferences = world.host.preferences();
  const Answering answering(Qt::Key_Return);
  QToolButton& button = *place(kRound);
  QTest::mouseClick(&button, Qt::LeftButton);
  preferences.put("Corvane", "Shape", std::int32_t{2});
  preferences.put("Corvane", "Action", std::int32_t{2});
  QTest::mouseDClick(&button, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !marks().empty(); }));
  EXPECT_EQ(world.document().undoCount(), 1U);
}

TEST_F(WindowToolTest, TheThemeReachesTheIcons) {
  const QImage arrow = iconShown(0);
  ASSERT_FALSE(iconFile(kRound, Theme::Light).isNull());
  EXPECT_TRUE(iconShown(kRound) == iconFile(kRound, Theme::Light));
  const ThemeChanges changes(window);
  world.choose({"View", "Dark"});
  EXPECT_EQ(changes.count(), 1) << "the plug-in has heard of it";
  EXPECT_LT(window.palette().color(QPalette::Window).lightness(), 128);
  EXPECT_FALSE(iconFile(kRound, Theme::Dark) == iconFile(kRound, Theme::Light));
  EXPECT_TRUE(iconShown(kRound) == iconFile(kRound, Theme::Dark));
  EXPECT_FALSE(iconShown(0) == arrow);
  EXPECT_THAT(world.menuTree(), testing::HasSubstr("  Light\n  Dark [x]\n"));
  world.choose({"View", "Light"});
  EXPECT_GT(window.palette().color(QPalette::Window).lightness(), 128);
  EXPECT_TRUE(iconShown(kRound) == iconFile(kRound, Theme::Light));
  EXPECT_TRUE(iconShown(0) == arrow);
}

}  // namespace
}  // namespace host
