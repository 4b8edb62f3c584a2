// The panel of the artboards.
#pragma once

#include "ArtboardModel.h"
#include "HostPanel.h"

namespace host {

class PanelList;

// The artboard whose row is the current one is the document's active artboard.
class ArtboardsPanel : public HostPanel {
 public:
  // `fit` shows a part of the current document, in its units.
  ArtboardsPanel(Host& host, Session& session, std::function<void()> onChange,
                 std::function<void(const AIRealRect&)> fit);

  void refresh() override;

 protected:
  void fillMenu(QMenu& menu) override;

 private:
  std::function<void(const AIRealRect&)> fit_;
  ArtboardModel model_;
  PanelList* list_;
};

}  // namespace host
