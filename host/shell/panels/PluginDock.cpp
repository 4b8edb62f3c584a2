#include "PluginDock.h"

#include <QMenu>
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

PanelDock::Face faceOf(Host& host, const PanelRecord& panel) {
  PanelDock::Face face;
  face.title = QString::fromStdString(panel.title);
  face.icon = panelIcon(host, panel, theme());
  face.hasStates = panel.stateCount > 1;
  face.hasMenu = panel.menu != nullptr;
  face.limits = limitsOf(panel);
  return face;
}

}  // namespace

PluginDock::PluginDock(QMainWindow& window, Host& host, const PanelRecord& panel, QWidget& view,
                       std::function<void()> onChange)
    : PanelDock(window, panel.identifier, faceOf(host, panel), view, std::move(onChange)),
      host_(host),
      panel_(panel.handle) {}

PanelRecord* PluginDock::record() const {
  return host_.panels().find(panel_);
}

void PluginDock::refresh() {
  if (const PanelRecord* panel = record()) showFace(faceOf(host_, *panel));
}

void PluginDock::panelGone() {
  panel_ = nullptr;
  goAway();
}

void PluginDock::changeState() {
  tellOfState(host_, panel_);
}

void PluginDock::viewResized() {
  tellOfSize(host_, panel_);
}

void PluginDock::shownOrHidden(bool shown) {
  tellOfVisibility(host_, panel_, shown);
}

void PluginDock::openMenu() {
  tellOfFlyoutOpening(host_, panel_);
  const PanelRecord* panel = record();
  const FlyoutMenu* menu = panel == nullptr ? nullptr : host_.objects().flyoutMenus.find(panel->menu);
  if (menu == nullptr) return;
  QMenu* popup = makeFlyoutPopup(*menu, this, [this](std::uint32_t id) {
    tellOfFlyoutSelection(host_, panel_, id);
    changed();
  });
  popup->popup(menuCorner());
}

}  // namespace host
