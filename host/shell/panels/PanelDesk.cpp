#include "PanelDesk.h"

#include <QMainWindow>
#include <utility>

#include "DockPanelView.h"
#include "Host.h"
#include "PluginDock.h"

namespace host {

PanelDesk::PanelDesk(QMainWindow& window, Host& host, std::function<void()> onChange)
    : window_(window), host_(host), onChange_(std::move(onChange)) {
  window.setDockOptions(QMainWindow::AllowNestedDocks);
  host.panels().views = this;
}

// The plug-ins' views stay for as long as their panels do.
PanelDesk::~PanelDesk() {
  rememberForGood();
  host_.panels().views = nullptr;
  for (const auto& dock : docks_) delete dock;
}

std::unique_ptr<PanelView> PanelDesk::make(PanelRecord& panel) {
  auto view = std::make_unique<QWidget>();
  auto* dock = new PluginDock(window_, host_, panel, *view, [this] { onChange_(); });
  auto shown = std::make_unique<DockPanelView>(panel, *view.release(), *dock);
  shown->onEnd = [this](PluginDock& ending) {
    remember(ending);
    docks_.removeAll(&ending);
    onChange_();
  };
  docks_.append(dock);
  if (const auto place = rememberedPlace(host_.preferences(), panel.identifier)) dock->comeBack(*place);
  onChange_();
  return shown;
}

void PanelDesk::refresh() {
  for (const auto& dock : docks_) dock->refresh();
}

QList<QAction*> PanelDesk::makeActions() {
  QList<QAction*> actions;
  for (const auto& dock : docks_) {
    if (host_.panels().find(dock->panel()) != nullptr) actions.append(dock->makeAction(window_));
  }
  return actions;
}

void PanelDesk::remember(PluginDock& dock) {
  if (!remembersNoMore_) rememberPlace(host_.preferences(), dock.identifier(), dock.place());
}

void PanelDesk::rememberForGood() {
  for (const auto& dock : docks_) remember(*dock);
  remembersNoMore_ = true;
}

}  // namespace host
