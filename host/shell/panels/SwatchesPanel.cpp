#include "SwatchesPanel.h"

#include <QMenu>
#include <utility>

#include "Document.h"
#include "PanelList.h"
#include "SwatchEdits.h"

namespace host {
namespace {

constexpr char kStep[] = "Apply Swatch";
constexpr QSize kChip(20, 14);

}  // namespace

SwatchesPanel::SwatchesPanel(Host& host, Session& session, std::function<void()> onChange)
    : HostPanel(host, session, std::move(onChange)), list_(new PanelList("Swatches", this)) {
  fillWith(*list_);
  list_->setModel(&model_);
  list_->setIconSize(kChip);
  list_->onMenu = [this](const QPoint& place) { makeMenu()->popup(place); };
  list_->onEntered = [this](int row) { applyToStrokeOf(row); };
}

void SwatchesPanel::refresh() {
  const SwatchModel::Row* const chosen = model_.swatchAt(list_->currentIndex().row());
  const SwatchId id = chosen == nullptr ? 0 : chosen->swatch;
  model_.show(document());
  list_->turnTo(model_.rowOf(id));
}

bool SwatchesPanel::canPaint() const {
  const auto current = document();
  return current != nullptr && current->selectedCount() > 0;
}

void SwatchesPanel::applyToStrokeOf(int row) {
  const SwatchModel::Row* const swatch = model_.swatchAt(row);
  if (swatch == nullptr || !canPaint()) return;
  edit(kStep, [paint = swatch->paint](Document& document) { applyToStroke(document, paint); });
}

void SwatchesPanel::fillMenu(QMenu& menu) {
  const SwatchModel::Row* const swatch = model_.swatchAt(list_->currentIndex().row());
  const bool isChosen = swatch != nullptr;
  const AIColor paint = isChosen ? swatch->paint : AIColor{};
  addCommand(menu, "Apply to &Stroke\tReturn", isChosen && canPaint(),
             [this, paint] { edit(kStep, [&](Document& document) { applyToStroke(document, paint); }); });
  addCommand(menu, "Apply to &Fill", isChosen && canPaint(),
             [this, paint] { edit(kStep, [&](Document& document) { applyToFill(document, paint); }); });
  menu.addSeparator();
  addCommand(menu, "Select Same Stroke &Color", isChosen,
             [this, paint] { edit("Select", [&](Document& document) { selectByStroke(document, paint); }); });
}

}  // namespace host
