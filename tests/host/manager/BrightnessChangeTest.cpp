// Who hears of a change of brightness, when, and who looks different after it.
#include <QWidget>
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

struct Listener : QWidget {
  Listener(std::string itsName, Log& itsLog, QWidget* parent = nullptr)
      : QWidget(parent), name(std::move(itsName)), log(itsLog) {}
  bool event(QEvent* event) override {
    if (event->type() != RVADMQtManager::kThemeChangedEvent) return QWidget::event(event);
    log.push_back(name);
    if (onChange) onChange();
    return true;
  }

  std::function<void()> onChange;
  std::string name;
  Log& log;
};

class BrightnessChange : public WidgetTest {
 protected:
  ~BrightnessChange() override { host::setHostWindow(nullptr); }

  Log log_;
};

TEST_F(BrightnessChange, IsToldInOneOrderToThoseThatFollow) {
  Listener second("second", log_), first("first", log_), unaware("unaware", log_), window("window", log_);
  Listener panel("panel", log_, &window), inPanel("in panel", log_, &panel), strip("strip", log_, &window);
  Listener item("item", log_, &first), keeps("keeps", log_), inKeeping("in keeping", log_, &keeps);
  QtManager::MakeDVAStyleAware(&keeps, false);
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
  const QColor light = host::themePalette(Theme::Light).color(QPalette::Window),
               dark = host::themePalette(Theme::Dark).color(QPalette::Window);
  setTheme(Theme::Dark);
  EXPECT_EQ(ground(follows), dark);
  EXPECT_EQ(ground(keeps), light);
  EXPECT_TRUE(QtManager::IsInDarkMode(&follows));
  EXPECT_FALSE(QtManager::IsInDarkMode(&inKeeping));
  QtManager::MakeDVAStyleAware(&keeps, true);
  EXPECT_EQ(ground(keeps), dark);
}

}  // namespace
