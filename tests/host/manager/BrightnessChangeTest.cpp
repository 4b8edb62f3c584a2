// Who hears of a change of brightness, when, and who looks different after it.
#include <QMainWindow>
#include <QPainter>
#include <QPushButton>
#include <functional>
#include <string>
#include <vector>

#include "Application.h"
#include "HostWindow.h"
#include "QtManager.h"
#include "ThemePalette.h"

namespace {

using host::setTheme;
using host::Theme;
using RVADMQtManager::QtManager;

using Log = std::vector<std::string>;

class Listener : public QWidget {
 public:
  Listener(std::string name, Log& log, QWidget* parent = nullptr)
      : QWidget(parent), name_(std::move(name)), log_(log) {}

  std::function<void()> onChange;

 protected:
  bool event(QEvent* event) override {
    if (event->type() != RVADMQtManager::kThemeChangedEvent) return QWidget::event(event);
    log_.push_back(name_);
    if (onChange) onChange();
    return true;
  }

 private:
  std::string name_;
  Log& log_;
};

class BrightnessChange : public WidgetTest {
 protected:
  ~BrightnessChange() override { host::setHostWindow(nullptr); }

  Log log_;
};

TEST_F(BrightnessChange, IsToldInOneOrder) {
  Listener second("second", log_), first("first", log_), unaware("unaware", log_), window("window", log_);
  Listener panel("panel", log_, &window), inPanel("in panel", log_, &panel), strip("strip", log_, &window);
  Listener item("item", log_, &first);
  host::setHostWindow(&window);
  QtManager::MakeDVAStyleAware(&first, true);
  QtManager::MakeDVAStyleAware(&second, true);
  QtManager::MakeDVAStyleAware(&first, true);
  setTheme(Theme::Dark);
  EXPECT_TRUE(log_.empty());
  QtManager::UpdateUIColorScheme();
  EXPECT_EQ(log_, (Log{"in panel", "panel", "strip", "window", "item", "first", "second", "unaware"}));
}

TEST_F(BrightnessChange, SparesWidgetsThatHandlersDelete) {
  Listener window("window", log_);
  host::setHostWindow(&window);
  auto* deletes = new Listener("deletes", log_, &window);
  auto* deleted = new Listener("deleted", log_, &window);
  new Listener("child of deleted", log_, deleted);
  auto* ends = new Listener("ends itself", log_, &window);
  deletes->onChange = [&] { delete deleted; };
  ends->onChange = [&] { delete ends; };
  QtManager::UpdateUIColorScheme();
  EXPECT_EQ(log_, (Log{"deletes", "ends itself", "window"}));
}

TEST_F(BrightnessChange, WithinAHandlerGoesRoundOnceMoreIfTheThemeIsAnother) {
  Listener window("window", log_);
  window.onChange = [] { QtManager::UpdateUIColorScheme(); };
  QtManager::UpdateUIColorScheme();
  EXPECT_EQ(log_.size(), 1U);
  window.onChange = [] { setTheme(Theme::Dark); };
  QtManager::UpdateUIColorScheme();
  EXPECT_EQ(log_.size(), 3U);
}

TEST_F(BrightnessChange, RepaintsAtOnceWhatFollows) {
  QWidget follows, keeps;
  QWidget inKeeping(&keeps);
  QtManager::MakeDVAStyleAware(&follows, true);
  QtManager::MakeDVAStyleAware(&keeps, false);
  const auto ground = [](QWidget& widget) { return widget.grab().toImage().pixelColor(1, 1); };
  const QColor light = host::themePalette(Theme::Light).color(QPalette::Window);
  const QColor dark = host::themePalette(Theme::Dark).color(QPalette::Window);
  EXPECT_EQ(ground(follows), light);
  setTheme(Theme::Dark);
  EXPECT_EQ(ground(follows), dark);
  EXPECT_EQ(ground(keeps), light);
  EXPECT_TRUE(QtManager::IsInDarkMode(nullptr));
  EXPECT_TRUE(QtManager::IsInDarkMode(&follows));
  EXPECT_FALSE(QtManager::IsInDarkMode(&inKeeping));
  QtManager::MakeDVAStyleAware(&keeps, true);
  EXPECT_EQ(ground(keeps), dark);
}

TEST_F(BrightnessChange, LeavesThoseOutThatKeepTheirColours) {
  Listener keeps("keeps", log_);
  const Listener inKeeping("in keeping", log_, &keeps);
  QtManager::MakeDVAStyleAware(&keeps, false);
  QtManager::UpdateUIColorScheme();
  EXPECT_TRUE(log_.empty());
}

TEST_F(BrightnessChange, ControlColourIsOfTheWidgetAndShowsOnItsGrounds) {
  QWidget keeps;
  QtManager::MakeDVAStyleAware(&keeps, false);
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    setTheme(theme);
    const QPalette palette = host::themePalette(theme);
    const QColor colour = QtManager::GetControlColor(nullptr, RVADMQtManager::kControlBackground, true);
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base}) {
      EXPECT_GE(std::abs(colour.lightness() - palette.color(ground).lightness()), 10);
    }
    EXPECT_NE(colour, QtManager::GetControlColor(nullptr, RVADMQtManager::kControlBackground, false));
  }
  EXPECT_EQ(QtManager::GetControlColor(&keeps, RVADMQtManager::kControlBackground, true),
            host::themePalette(Theme::Light).color(QPalette::Midlight));
}

}  // namespace
