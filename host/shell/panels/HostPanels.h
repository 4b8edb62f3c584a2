// The application's own panels in the window: layers, swatches, artboards and preflight.
#pragma once

#include <QList>
#include <functional>
#include <memory>
#include <vector>

#include "AITypes.h"

class QAction;
class QMainWindow;

namespace host {

class Host;
class HostDock;
class HostPanel;
struct PanelPlace;
class Session;

class HostPanels {
 public:
  struct Commands {
    std::function<void()> changed;               // documents, or what a menu says of the panels
    std::function<void(const AIRealRect&)> fit;  // shows this part of the current document, in its units
  };

  // Makes the panels, each where it was last time. The others must outlive this.
  HostPanels(QMainWindow& window, Host& host, Session& session, Commands commands);
  HostPanels(const HostPanels&) = delete;
  HostPanels& operator=(const HostPanels&) = delete;
  ~HostPanels();

  // To be called after anything may have changed; cheap if nothing has.
  void refresh();
  // An item for each panel, that shows or hides it. They are the caller's.
  QList<QAction*> makeActions();
  // Notes where all panels are. What happens to them later is of no account: the window closes.
  void rememberForGood();

 private:
  struct Entry {
    std::unique_ptr<HostPanel> panel;
    std::unique_ptr<HostDock> dock;  // goes first
  };

  void add(const char* name, const PanelPlace& first, std::unique_ptr<HostPanel> panel);

  QMainWindow& window_;
  Host& host_;
  Commands commands_;
  std::vector<Entry> entries_;
  bool remembersNoMore_ = false;
};

}  // namespace host
