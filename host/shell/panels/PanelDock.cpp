#include "PanelDock.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>
#include <utility>

namespace host {
namespace {

// A title that no screen shows can't be dragged.
QPoint onAScreen(QPoint corner) {
  if (QGuiApplication::screenAt(corner) != nullptr) return corner;
  return QGuiApplication::primaryScreen()->availableGeometry().topLeft();
}

}  // namespace

PanelDock::PanelDock(QMainWindow& window, const std::string& identifier, const Face& face, QWidget& view,
                     std::function<void()> onChange)
    : window_(window),
      onChange_(std::move(onChange)),
      title_(new PanelTitle(commands())),
      holder_(new PanelHolder(view)) {
  setObjectName(QString::fromStdString(identifier));
  setTitleBarWidget(title_);
  setWidget(holder_);
  hide();
  window.addDockWidget(Qt::RightDockWidgetArea, this);
  showFace(face);
  holder_->onViewResized = [this] { viewResized(); };
  connect(this, &QDockWidget::topLevelChanged, this, [this] { floatingChanged(); });
}

PanelTitle::Commands PanelDock::commands() {
  return {[this] { changeState(); }, [this] { openMenu(); }, [this] { collapse(!holder_->isCollapsed()); },
          [this] { floatOrDock(); }, [this] { setShown(false); }};
}

// --- place ---

void PanelDock::comeBack(const PanelPlace& place) {
  hasPlace_ = true;
  window_.addDockWidget(static_cast<Qt::DockWidgetArea>(place.area), this);
  if (isResizable_) holder_->setViewSize(holder_->held({place.width, place.height}));
  if (place.floats) {
    setFloating(true);
    move(onAScreen({place.left, place.top}));
  }
  collapse(place.isCollapsed);
  if (!place.isShown) return;
  QTimer::singleShot(0, this, [this] {
    if (!wasToldToShow_ && isAlive()) setShown(true);
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
  if (isFloating()) {
    move(onAScreen(corner));
  } else if (!hasPlace_) {
    firstCorner_ = corner;
  }
}

void PanelDock::floatOrDock() {
  const std::optional<QPoint> corner = firstCorner_;
  setFloating(!isFloating());
  if (corner && isFloating()) move(onAScreen(*corner));
}

void PanelDock::floatingChanged() {
  hasPlace_ = true;
  firstCorner_.reset();
  refresh();
  onChange_();
  // Without a compositor, what a floating panel lay over still shows it.
  QTimer::singleShot(0, &window_, [window = &window_] { window->update(); });
}

// --- size and visibility ---

void PanelDock::setViewSize(QSize size) {
  const bool isNew = size != viewSize();
  holder_->setViewSize(size);
  if (isNew) takeRoom();
}

// As far as there is any: the window's layout has the last word.
void PanelDock::takeRoom() {
  if (!isShown_ || !isAlive()) return;
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
  shownOrHidden(shown);
}

QAction* PanelDock::makeAction(QObject& parent) {
  auto* action = new QAction(windowTitle().replace('&', "&&").replace('\t', ' '), &parent);
  action->setCheckable(true);
  action->setChecked(isShown_);
  connect(action, &QAction::triggered, this, [this](bool shown) { setShown(shown); });
  return action;
}

void PanelDock::closeEvent(QCloseEvent* event) {
  event->ignore();
  setShown(false);
}

void PanelDock::goAway() {
  isShown_ = false;
  hide();
  deleteLater();
}

// --- what its title shows ---

void PanelDock::showFace(const Face& face) {
  PanelTitle::Content content;
  content.title = face.title;
  content.icon = face.icon;
  content.hasStates = face.hasStates;
  content.hasMenu = face.hasMenu;
  content.isCollapsed = holder_->isCollapsed();
  content.floats = isFloating();
  title_->show(content);
  setWindowTitle(face.title);
  setAccessibleName(face.title);
  holder_->setAccessibleName(face.title);
  isResizable_ = face.limits.isResizable;
  holder_->setLimits(face.limits, isFloating());
}

}  // namespace host
