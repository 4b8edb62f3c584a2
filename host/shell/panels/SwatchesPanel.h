// The panel of the swatches.
#pragma once

#include "HostPanel.h"
#include "SwatchModel.h"

namespace host {

class PanelList;

class SwatchesPanel : public HostPanel {
 public:
  SwatchesPanel(Host& host, Session& session, std::function<void()> onChange);

  void refresh() override;

 protected:
  void fillMenu(QMenu& menu) override;

 private:
  bool canPaint() const;  // is something selected?
  void applyToStrokeOf(int row);

  SwatchModel model_;
  PanelList* list_;
};

}  // namespace host
