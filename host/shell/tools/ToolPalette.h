// The palette of tools at the edge of the window.
#pragma once

#include <QToolBar>
#include <map>

#include "ToolPlace.h"

namespace host {

class Host;
class HostTools;

// A place for each group of the host's tools: the application's own first, then tool set by tool set.
class ToolPalette : public QToolBar {
 public:
  // `host` must outlive it. `ownTools` has the application's own.
  ToolPalette(Host& host, const HostTools& ownTools, ToolPlace::Commands commands);

  // To be called when tools, the selection or the theme have changed.
  void refresh();

 private:
  void build();
  void showGroup(int group, ToolPlace& place);

  Host& host_;
  const HostTools& ownTools_;
  ToolPlace::Commands commands_;
  std::map<int, ToolPlace*> places_;  // by group
};

}  // namespace host
