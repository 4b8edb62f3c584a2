// Tools of the plug-in, used in the window with mouse and keys.
#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>
#include <QtTest/QTest>

#include "PluginPictures.h"
#include "QtManager.h"
#include "Theme.h"
#include "WindowWorld.h"

namespace host {
namespace {

constexpr AIToolType kRound = 3;  // behind Select, Pan and Zoom
constexpr AIToolType kCross = 4;
constexpr QRgb kSquareColor = qRgb(255, 0, 0);

QImage asShown(const QImage& image) {
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

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

  QWidget& view() { return world.view(); }
  QImage picture() { return view().grab().toImage(); }
  QRect square() {
    const QImage shown = picture();
    return boundsWhere(shown, [&](int x, int y) { return shown.pixel(x, y) == kSquareColor; });
  }
  std::string info() { return window.statusBar()->findChild<QLabel*>()->text().toStdString(); }

  QImage iconFile(AIToolType number, Theme theme) {
    const bool dark = theme == Theme::Dark;
    const auto file = world.host.pictures(tool(number).plugin)
                          .picture(dark ? tool(number).darkIcon : tool(number).lightIcon, {dark, false});
    return asShown(QImage(QString::fromStdString(file.value_or(""))));
  }
  QImage iconShown(AIToolType number) { return asShown(place(number)->icon().pixmap(20, 20).toImage()); }
};

TEST_F(WindowToolTest, StripsLieAtTheLeftEdgeOfTheArtboard) {
  window.resize(1300, 1100);
  settle();
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

TEST_F(WindowToolTest, CursorAndDisplayFollowThePointer) {
  const QPoint centre = square().center();
  const auto isCentre =
      testing::MatchesRegex("X (19[89]|20[01])\\.[0-9][0-9] pt   Y (19[89]|20[01])\\.[0-9][0-9] pt");
  world.movePointer(centre);
  EXPECT_EQ(view().cursor().shape(), Qt::ArrowCursor);
  EXPECT_THAT(info(), isCentre);
  choose(kRound);
  EXPECT_EQ(info(), "") << "the tool has said nothing yet";
  world.movePointer(centre);
  const auto file = world.host.pictures(tool(kRound).plugin).picture(16221, {});
  ASSERT_TRUE(file);
  EXPECT_TRUE(asShown(view().cursor().pixmap().toImage()) == asShown(QImage(QString::fromStdString(*file))));
  EXPECT_EQ(view().cursor().hotSpot(), QPoint(16, 16));
  EXPECT_THAT(info(), isCentre);
  choose(0);
  world.movePointer(centre);
  EXPECT_EQ(view().cursor().shape(), Qt::ArrowCursor);
  QEvent leaving(QEvent::Leave);
  QApplication::sendEvent(&view(), &leaving);
  EXPECT_EQ(info(), "");
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

TEST_F(WindowToolTest, TheThemeReachesTheIcons) {
  const QImage arrow = iconShown(0);
  ASSERT_FALSE(iconFile(kRound, Theme::Light).isNull());
  EXPECT_TRUE(iconShown(kRound) == iconFile(kRound, Theme::Light));
  world.choose({"View", "Dark"});
  EXPECT_LT(window.palette().color(QPalette::Window).lightness(), 128);
  EXPECT_FALSE(iconFile(kRound, Theme::Dark) == iconFile(kRound, Theme::Light));
  EXPECT_TRUE(iconShown(kRound) == iconFile(kRound, Theme::Dark));
  EXPECT_FALSE(iconShown(0) == arrow);
  EXPECT_THAT(world.menuTree(), testing::HasSubstr("Light, Dark [x], "));
  world.choose({"View", "Light"});
  EXPECT_GT(window.palette().color(QPalette::Window).lightness(), 128);
  EXPECT_TRUE(iconShown(kRound) == iconFile(kRound, Theme::Light));
  EXPECT_TRUE(iconShown(0) == arrow);
}

}  // namespace
}  // namespace host
