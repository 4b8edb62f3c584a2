#include "PanelDesk.h"

#include <QAction>
#include <QMainWindow>
#include <utility>

#include "DockPanelView.h"
#include "Host.h"
#include "PanelDock.h"

namespace host {
namespace {

std::string identifierOf(const PanelDock& dock) {
  return dock.objectName().toStdString();
}

}  // namespace

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
  auto* dock = new PanelDock(window_, host_, panel, *view, [this] { onChange_(); });
  auto shown = std::make_unique<DockPanelView>(panel, *view.release(), *dock);
  shown->onEnd = [this](PanelDock& ending) {
    remember(ending);
    docks_.removeAll(&ending);
    onChange_();
  };
  docks_.append(dock);
  dock->refresh();
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
    const PanelRecord* panel = host_.panels().find(dock->panel());
    if (panel != nullptr) actions.append(makeAction(*dock, QString::fromStdString(panel->title)));
  }
  return actions;
}

QAction* PanelDesk::makeAction(PanelDock& dock, const QString& title) {
  auto* action = new QAction(QString(title).replace('&', "&&").replace('\t', ' '), &window_);
  action->setCheckable(true);
  action->setChecked(dock.isShown());
  QObject::connect(action, &QAction::triggered, &dock, [&dock](bool shown) { dock.setShown(shown); });
  return action;
}

void PanelDesk::remember(PanelDock& dock) {
  if (!remembersNoMore_) rememberPlace(host_.preferences(), identifierOf(dock), dock.place());
}

void PanelDesk::rememberForGood() {
  for (const auto& dock : docks_) remember(*dock);
  remembersNoMore_ = true;
}

}  // namespace host
