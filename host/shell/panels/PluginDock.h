// The dock of a plug-in's panel.
#pragma once

#include "AITypes.h"
#include "PanelDock.h"

namespace host {

class Host;
struct PanelRecord;

class PluginDock : public PanelDock {
 public:
  // Of the size that the panel has at least. `host` must outlive it.
  PluginDock(QMainWindow& window, Host& host, const PanelRecord& panel, QWidget& view,
             std::function<void()> onChange);

  AIPanelRef panel() const { return panel_; }
  void refresh() override;
  // Without a panel from here on; to be deleted soon.
  void panelGone();

 protected:
  bool isAlive() const override { return record() != nullptr; }
  void changeState() override;
  void openMenu() override;
  void viewResized() override;
  void shownOrHidden(bool shown) override;

 private:
  PanelRecord* record() const;  // null if the panel is gone

  Host& host_;
  AIPanelRef panel_;
};

}  // namespace host
