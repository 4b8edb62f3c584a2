#include "ArtboardsPanel.h"

#include <QMenu>
#include <utility>

#include "ArtboardDelegate.h"
#include "Document.h"
#include "PanelList.h"

namespace host {

ArtboardsPanel::ArtboardsPanel(Host& host, Session& session, std::function<void()> onChange,
                               std::function<void(const AIRealRect&)> fit)
    : HostPanel(host, session, std::move(onChange)),
      fit_(std::move(fit)),
      list_(new PanelList("Artboards", this)) {
  fillWith(*list_);
  list_->setModel(&model_);
  list_->setItemDelegate(new ArtboardDelegate(list_));
  list_->onMenu = [this](const QPoint& place) { makeMenu()->popup(place); };
  list_->onTurned = [this](int row) {
    choose([row](Document& document) { document.setActiveArtboard(static_cast<std::size_t>(row)); });
  };
  list_->onEntered = [this](int row) { fit_(model_.at(row).position); };
}

void ArtboardsPanel::refresh() {
  model_.show(document().get());
  list_->turnTo(model_.activeRow());
}

void ArtboardsPanel::fillMenu(QMenu& menu) {
  const int row = model_.activeRow();
  addCommand(menu, "&Fit in View", row >= 0, [this] {
    if (model_.activeRow() >= 0) fit_(model_.at(model_.activeRow()).position);
  });
}

}  // namespace host
