// The panel of the layers.
#pragma once

#include "DocumentState.h"
#include "HostPanel.h"
#include "LayerModel.h"

namespace host {

class LayerList;

// The layer whose row is the current one is the document's current layer.
class LayersPanel : public HostPanel {
 public:
  LayersPanel(Host& host, Session& session, std::function<void()> onChange);

  void refresh() override;

 protected:
  void fillMenu(QMenu& menu) override;

 private:
  void addEdits(QMenu& menu, int row);
  void addSwitches(QMenu& menu, const LayerRow& layer);
  void editLayer(const char* stepName, LayerId id, const std::function<void(Document&)>& change);
  void toggleVisible(const LayerRow& layer);  // as it is now
  void toggleOthers(LayerId id);
  void toggleLocked(const LayerRow& layer);
  void move(LayerId id, int place);

  LayerModel model_;
  LayerList* list_;
};

}  // namespace host
