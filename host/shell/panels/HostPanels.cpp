#include "HostPanels.h"

#include <QAction>
#include <QMainWindow>
#include <utility>

#include "ArtboardsPanel.h"
#include "Host.h"
#include "HostDock.h"
#include "LayersPanel.h"
#include "PreflightPanel.h"
#include "SwatchesPanel.h"

namespace host {
namespace {

// In units of the interface, of what stands below a panel's title.
constexpr int kLeastWidth = 180;
constexpr int kWidth = 230;
constexpr int kLeastHeight = 66;
constexpr int kHeight = 150;
constexpr int kHeightOfSentences = 280;

PanelDock::Face faceOf(const char* title) {
  PanelDock::Face face;
  face.title = title;
  face.hasMenu = true;
  face.limits.minimum = {kLeastWidth, kLeastHeight};
  face.limits.maximum = {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
  face.limits.isResizable = true;
  return face;
}

// The first time: beside the drawing, and the artboards, of which there is mostly one, out of the way.
PanelPlace firstPlace(bool isCollapsed) {
  PanelPlace place;
  place.isShown = true;
  place.isCollapsed = isCollapsed;
  place.area = Qt::RightDockWidgetArea;
  place.width = kWidth;
  place.height = kHeight;
  return place;
}

// Only who asks for sentences gets them.
PanelPlace firstPlaceOfPreflight() {
  PanelPlace place = firstPlace(false);
  place.isShown = false;
  place.height = kHeightOfSentences;
  return place;
}

}  // namespace

HostPanels::HostPanels(QMainWindow& window, Host& host, Session& session, Commands commands)
    : window_(window), host_(host), commands_(std::move(commands)) {
  const auto changed = [this] { commands_.changed(); };
  add("Layers", firstPlace(false), std::make_unique<LayersPanel>(host, session, changed));
  add("Swatches", firstPlace(false), std::make_unique<SwatchesPanel>(host, session, changed));
  add("Artboards", firstPlace(true), std::make_unique<ArtboardsPanel>(host, session, changed, commands_.fit));
  add("Preflight", firstPlaceOfPreflight(),
      std::make_unique<PreflightPanel>(host, session, changed, commands_.fit));
}

HostPanels::~HostPanels() {
  rememberForGood();
}

void HostPanels::add(const char* name, const PanelPlace& first, std::unique_ptr<HostPanel> panel) {
  const std::string identifier = std::string("corvane-host ") + name;
  auto dock =
      std::make_unique<HostDock>(window_, identifier, faceOf(name), *panel, [this] { commands_.changed(); });
  const PanelPlace place = rememberedPlace(host_.preferences(), identifier).value_or(first);
  dock->comeBack(place);
  dock->setShown(place.isShown);
  entries_.push_back({std::move(panel), std::move(dock)});
}

void HostPanels::refresh() {
  for (const Entry& entry : entries_) entry.panel->refresh();
}

QList<QAction*> HostPanels::makeActions() {
  QList<QAction*> actions;
  for (const Entry& entry : entries_) actions.append(entry.dock->makeAction(window_));
  return actions;
}

void HostPanels::rememberForGood() {
  if (std::exchange(remembersNoMore_, true)) return;
  for (const Entry& entry : entries_) {
    rememberPlace(host_.preferences(), entry.dock->identifier(), entry.dock->place());
  }
}

}  // namespace host
