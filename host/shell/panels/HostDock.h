// The dock of a panel of the application itself.
#pragma once

#include "PanelDock.h"

namespace host {

class HostPanel;

class HostDock : public PanelDock {
 public:
  // `panel` stays the caller's and must outlive it.
  HostDock(QMainWindow& window, const std::string& identifier, const Face& face, HostPanel& panel,
           std::function<void()> onChange);

  void refresh() override;

 protected:
  void openMenu() override;

 private:
  Face face_;
  HostPanel& panel_;
};

}  // namespace host
