#include "LayersPanel.h"

#include <QMenu>
#include <utility>

#include "Document.h"
#include "LayerEdits.h"
#include "LayerList.h"

namespace host {

LayersPanel::LayersPanel(Host& host, Session& session, std::function<void()> onChange)
    : HostPanel(host, session, std::move(onChange)),
      model_([this](LayerId id, const QString& title) {
        editLayer("Rename Layer", id,
                  [&](Document& document) { renameLayer(document, id, title.toStdString()); });
      }),
      list_(new LayerList(this, {[this](int row) { toggleVisible(model_.at(row)); },
                                 [this](int row) { toggleOthers(model_.at(row).id); },
                                 [this](int row) { toggleLocked(model_.at(row)); },
                                 [this](int row, int place) { move(model_.at(row).id, place); }})) {
  fillWith(*list_);
  list_->setModel(&model_);
  list_->onMenu = [this](const QPoint& place) { makeMenu()->popup(place); };
  list_->onTurned = [this](int row) {
    choose([id = model_.at(row).id](Document& document) { document.setCurrentLayer(id); });
  };
}

void LayersPanel::refresh() {
  model_.show(document().get());
  list_->turnTo(model_.currentRow());
}

// A menu or a field that asked for it may have outlived the layer.
void LayersPanel::editLayer(const char* stepName, LayerId id, const std::function<void(Document&)>& change) {
  const auto current = document();
  if (current != nullptr && current->layer(id) != nullptr) edit(stepName, change);
}

void LayersPanel::toggleVisible(const LayerRow& layer) {
  editLayer(layer.isVisible ? "Hide Layer" : "Show Layer", layer.id,
            [id = layer.id, isVisible = !layer.isVisible](Document& document) {
              setLayerVisible(document, id, isVisible);
            });
}

void LayersPanel::toggleOthers(LayerId id) {
  const auto current = document();
  if (current != nullptr && isOnlyVisibleLayer(*current, id)) {
    edit("Show All Layers", showAllLayers);
  } else {
    editLayer("Hide Other Layers", id, [id](Document& document) { showOnlyLayer(document, id); });
  }
}

void LayersPanel::toggleLocked(const LayerRow& layer) {
  editLayer(layer.isLocked ? "Unlock Layer" : "Lock Layer", layer.id,
            [id = layer.id, isLocked = !layer.isLocked](Document& document) {
              setLayerLocked(document, id, isLocked);
            });
}

void LayersPanel::move(LayerId id, int place) {
  editLayer("Move Layer", id,
            [=](Document& document) { moveLayer(document, id, static_cast<std::size_t>(place)); });
}

// --- menu ---

void LayersPanel::fillMenu(QMenu& menu) {
  const int row = model_.currentRow();
  addCommand(menu, "&New Layer", document() != nullptr, [this] { edit("New Layer", addLayer); });
  if (row < 0) return;
  addEdits(menu, row);
  menu.addSeparator();
  addSwitches(menu, model_.at(row));
  menu.addSeparator();
  const LayerId id = model_.at(row).id;
  addCommand(menu, "Select All on &Layer", model_.at(row).isVisible && !model_.at(row).isLocked, [this, id] {
    editLayer("Select", id, [id](Document& document) { selectArtOfLayer(document, id); });
  });
}

void LayersPanel::addEdits(QMenu& menu, int row) {
  const LayerId id = model_.at(row).id;
  const int rows = model_.rowCount();
  addCommand(menu, "&Rename\tF2", true, [this, row] { list_->rename(row); });
  addCommand(menu, "&Delete Layer", rows > 1, [this, id] {
    editLayer("Delete Layer", id, [id](Document& document) { document.deleteLayer(id); });
  });
  menu.addSeparator();
  addCommand(menu, "Move &Up\tAlt+Up", row > 0, [this, id, row] { move(id, row - 1); });
  addCommand(menu, "Move D&own\tAlt+Down", row + 1 < rows, [this, id, row] { move(id, row + 1); });
}

void LayersPanel::addSwitches(QMenu& menu, const LayerRow& layer) {
  const bool isOnly = isOnlyVisibleLayer(*document(), layer.id);
  addCommand(menu, layer.isVisible ? "&Hide\tSpace" : "S&how\tSpace", true,
             [this, layer] { toggleVisible(layer); });
  addCommand(menu, isOnly ? "Show &All\tAlt+Click" : "Hide O&thers\tAlt+Click", model_.rowCount() > 1,
             [this, id = layer.id] { toggleOthers(id); });
  addCommand(menu, layer.isLocked ? "Unloc&k" : "Loc&k", true, [this, layer] { toggleLocked(layer); });
}

}  // namespace host
