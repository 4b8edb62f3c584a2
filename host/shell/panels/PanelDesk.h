// The panels of plug-ins in the window.
#pragma once

#include <QList>
#include <QPointer>
#include <functional>

#include "PanelView.h"

class QAction;
class QMainWindow;

namespace host {

class Host;
class PluginDock;

class PanelDesk : public PanelViews {
 public:
  // Shows the host's panels from here on. `window` and `host` must outlive it; `onChange` is called when the
  // menu's items have changed.
  PanelDesk(QMainWindow& window, Host& host, std::function<void()> onChange);
  ~PanelDesk() override;

  std::unique_ptr<PanelView> make(PanelRecord& panel) override;

  // An item for each panel, that shows or hides it; in order of creation. They are the caller's.
  QList<QAction*> makeActions();
  // To be called when the theme has changed.
  void refresh();
  // Notes where all panels are. What happens to them later is of no account: the window closes.
  void rememberForGood();

 private:
  void remember(PluginDock& dock);

  QMainWindow& window_;
  Host& host_;
  std::function<void()> onChange_;
  QList<QPointer<PluginDock>> docks_;
  bool remembersNoMore_ = false;
};

}  // namespace host
