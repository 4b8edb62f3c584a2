#include "ViewCommands.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <utility>

#include "DrawingTabs.h"
#include "DrawingView.h"
#include "Host.h"
#include "MenuBar.h"
#include "OpenDrawing.h"
#include "RulerUnits.h"
#include "WindowParts.h"
#include "WindowSettings.h"

namespace host {
namespace {

constexpr double kZoomStep = 1.25;

}  // namespace

ViewCommands::ViewCommands(const WindowParts& parts) : parts_(parts) {
  makeZoom();
  makeRulers();
}

void ViewCommands::makeZoom() {
  const auto zoomBy = [](double factor) {
    return [factor](DrawingView& view) { view.zoomTo(view.drawing().shown->view.zoom() * factor); };
  };
  QAction* in = commandOn("Zoom &In", "Ctrl++", zoomBy(kZoomStep), "Ctrl+=", "+");
  QAction* out = commandOn("Zoom &Out", "Ctrl+-", zoomBy(1 / kZoomStep), "", "-");
  QAction* actual = commandOn("&Actual Size", "Ctrl+1", [](DrawingView& view) { view.zoomTo(1); });
  QAction* fit = commandOn("&Fit Artboard", "Ctrl+0", [this](DrawingView& view) { fitArtboard(view); });
  QAction* fitAll = commandOn("Fit A&ll", "Ctrl+Alt+0", [](DrawingView& view) { view.fitArtboards(); });
  parts_.menus.setOwnItems("View Zoom", {in, out, actual, fit, fitAll});
}

QAction* ViewCommands::commandOn(const char* text, const char* keys, std::function<void(DrawingView&)> run,
                                 const char* otherKeys, const char* shortKey) {
  QList<QKeySequence> all;
  for (const char* one : {keys, otherKeys, shortKey}) {
    if (*one != '\0') all << QKeySequence(one);
  }
  QAction* action = parts_.command(text, all, [this, run = std::move(run)] {
    if (DrawingView* view = parts_.view()) run(*view);
    parts_.refresh();
  });
  ofDrawing_.push_back(action);
  return action;
}

void ViewCommands::fitArtboard(DrawingView& view) {
  const DocumentState& state = view.drawing().document().state();
  if (state.activeArtboard < state.artboards.size()) view.fit(state.artboards[state.activeArtboard].position);
}

void ViewCommands::makeRulers() {
  rulers_ = parts_.command("&Rulers", {QKeySequence("Ctrl+R")}, [this] {
    parts_.settings.setShowsRulers(rulers_->isChecked());
    parts_.tabs.showRulers(rulers_->isChecked());
    parts_.store();
  });
  rulers_->setCheckable(true);
  rulers_->setChecked(parts_.settings.showsRulers());
  parts_.tabs.showRulers(rulers_->isChecked());
  units_ = new QMenu("&Units", &parts_.window);
  auto* group = new QActionGroup(units_);
  for (const RulerUnit& choice : rulerUnits()) {
    QAction* action = parts_.command(choice.name, {}, [this, units = choice.units] {
      if (OpenDrawing* drawing = parts_.drawing()) parts_.tabs.chooseUnits(*drawing, units);
      parts_.refresh();
    });
    action->setCheckable(true);
    action->setData(int{choice.units});
    group->addAction(action);
    units_->addAction(action);
  }
  parts_.menus.setOwnItems("View Rulers", {rulers_, units_->menuAction()});
}

void ViewCommands::refresh() {
  const OpenDrawing* drawing = parts_.drawing();
  for (QAction* action : ofDrawing_) action->setEnabled(drawing != nullptr);
  units_->menuAction()->setEnabled(drawing != nullptr);
  if (drawing == nullptr) return;
  for (QAction* action : units_->actions()) {
    action->setChecked(action->data().toInt() == int{drawing->document().rulerUnits()});
  }
}

}  // namespace host
