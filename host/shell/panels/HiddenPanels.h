// Panels in a run without a window: they are there, but never seen.
#pragma once

#include "PanelView.h"

namespace host {

class Host;

class HiddenPanels : public PanelViews {
 public:
  // From here on the panels of `host`, which must outlive it.
  explicit HiddenPanels(Host& host);
  HiddenPanels(const HiddenPanels&) = delete;
  HiddenPanels& operator=(const HiddenPanels&) = delete;
  ~HiddenPanels() override;

  std::unique_ptr<PanelView> make(PanelRecord& panel) override;

 private:
  Host& host_;
};

}  // namespace host
