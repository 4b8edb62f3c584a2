#include "PanelDock.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <QTimer>
#include <cmath>
#include <utility>

#include "FlyoutPopup.h"
#include "Host.h"
#include "HostObjects.h"
#include "PanelCalls.h"
#include "PluginPictures.h"

namespace host {
namespace {

QSize toQSize(AISize size) {
  return {static_cast<int>(std::lround(size.width)), static_cast<int>(std::lround(size.height))};
}

PanelHolder::Limits limitsOf(const PanelRecord& panel) {
  PanelHolder::Limits limits;
  limits.minimum = toQSize(panel.minimum);
  limits.maximum = toQSize(panel.maximum);
  limits.isResizable = panel.isResizable;
  limits.verticalStep = static_cast<int>(std::lround(panel.verticalStep));
  return limits;
}

// A title that no screen shows can't be dragged.
QPoint onAScreen(QPoint corner) {
  if (QGuiApplication::screenAt(corner) != nullptr) return corner;
  return QGuiApplication::primaryScreen()->availableGeometry().topLeft();
}

}  // namespace

PanelDock::PanelDock(QMainWindow& window, Host& host, const PanelRecord& panel, QWidget& view,
                     std::function<void()> onChange)
    : window_(window),
      host_(host),
      panel_(panel.handle),
      onChange_(std::move(onChange)),
      title_(new PanelTitle(commands())),
      holder_(new PanelHolder(view)) {
  setObjectName(QString::fromStdString(panel.identifier));
  setTitleBarWidget(title_);
  setWidget(holder_);
  holder_->setLimits(limitsOf(panel), false);
  holder_->onViewResized = [this] { tellOfSize(host_, panel_); };
  hide();
  window.addDockWidget(Qt::RightDockWidgetArea, this);
  connect(this, &QDockWidget::topLevelChanged, this, [this] { floatingChanged(); });
}

PanelRecord* PanelDock::record() const {
  return host_.panels().find(panel_);
}

PanelTitle::Commands PanelDock::commands() {
  return {[this] { tellOfState(host_, panel_); }, [this] { openMenu(); },
          [this] { collapse(!holder_->isCollapsed()); }, [this] { setFloating(!isFloating()); },
          [this] { setShown(false); }};
}

// --- place ---

void PanelDock::comeBack(const PanelPlace& place) {
  hasPlace_ = true;
  window_.addDockWidget(static_cast<Qt::DockWidgetArea>(place.area), this);
  if (const PanelRecord* panel = record(); panel != nullptr && panel->isResizable) {
    const AISize size{static_cast<AIReal>(place.width), static_cast<AIReal>(place.height)};
    holder_->setViewSize(toQSize(heldWithin(*panel, size)));
  }
  if (place.floats) {
    setFloating(true);
    move(onAScreen({place.left, place.top}));
  }
  collapse(place.isCollapsed);
  if (!place.isShown) return;
  QTimer::singleShot(0, this, [this] {
    if (!wasToldToShow_ && record() != nullptr) setShown(true);
  });
}

PanelPlace PanelDock::place() {
  const Qt::DockWidgetArea area = window_.dockWidgetArea(this);
  PanelPlace place;
  place.isShown = isShown_;
  place.floats = isFloating();
  place.isCollapsed = holder_->isCollapsed();
  place.area = area == Qt::NoDockWidgetArea ? Qt::RightDockWidgetArea : area;
  place.left = x();
  place.top = y();
  place.width = viewSize().width();
  place.height = viewSize().height();
  return place;
}

void PanelDock::moveTo(QPoint corner) {
  if (hasPlace_ && !isFloating()) return;
  setFloating(true);
  hasPlace_ = false;
  move(onAScreen(corner));
}

void PanelDock::floatingChanged() {
  hasPlace_ = true;
  refresh();
  onChange_();
}

// --- size and visibility ---

void PanelDock::setViewSize(QSize size) {
  const bool isNew = size != viewSize();
  holder_->setViewSize(size);
  if (isNew) takeRoom();
}

// As far as there is any: the window's layout has the last word.
void PanelDock::takeRoom() {
  if (!isShown_ || record() == nullptr) return;
  if (isFloating()) return resize(sizeHint());
  window_.resizeDocks({this}, {sizeHint().width()}, Qt::Horizontal);
  window_.resizeDocks({this}, {sizeHint().height()}, Qt::Vertical);
}

void PanelDock::collapse(bool isCollapsed) {
  holder_->collapse(isCollapsed);
  refresh();
  takeRoom();
  onChange_();
}

void PanelDock::setShown(bool shown) {
  wasToldToShow_ = true;
  if (shown) raise();
  if (shown == isShown_) return;
  isShown_ = shown;
  setVisible(shown);
  takeRoom();
  onChange_();
  tellOfVisibility(host_, panel_, shown);
}

void PanelDock::closeEvent(QCloseEvent* event) {
  event->ignore();
  setShown(false);
}

void PanelDock::panelGone() {
  panel_ = nullptr;
  isShown_ = false;
  hide();
  deleteLater();
}

// --- what its title shows ---

void PanelDock::refresh() {
  const PanelRecord* panel = record();
  if (panel == nullptr) return;
  PanelTitle::Content content;
  content.title = QString::fromStdString(panel->title);
  content.icon = panelIcon(host_, *panel, theme());
  content.hasStates = panel->stateCount > 1;
  content.hasMenu = panel->menu != nullptr;
  content.isCollapsed = holder_->isCollapsed();
  content.floats = isFloating();
  title_->show(content);
  setWindowTitle(content.title);
  setAccessibleName(content.title);
  holder_->setAccessibleName(content.title);
  holder_->setLimits(limitsOf(*panel), isFloating());
}

void PanelDock::openMenu() {
  tellOfFlyoutOpening(host_, panel_);
  const PanelRecord* panel = record();
  const FlyoutMenu* menu = panel == nullptr ? nullptr : host_.objects().flyoutMenus.find(panel->menu);
  if (menu == nullptr) return;
  QMenu* popup = makeFlyoutPopup(*menu, this, [this](std::uint32_t id) {
    tellOfFlyoutSelection(host_, panel_, id);
    onChange_();
  });
  popup->popup(title_->menuCorner());
}

}  // namespace host
