// The application's own tools in the host's table of tools.
#pragma once

#include <QIcon>
#include <functional>
#include <memory>
#include <vector>

#include "AITool.h"
#include "HostTool.h"

namespace host {

class Host;

class HostTools {
 public:
  // Adds Select, Pan and Zoom to the host, side by side, and selects the first. `selectionDone` is called
  // after the user may have changed the selection in a drawing. `host` must outlive it.
  HostTools(Host& host, std::function<void()> selectionDone);

  HostTool* selected() const;                              // null while a plug-in's tool is
  AIToolHandle withKey(const QKeyEvent& event) const;      // null if the event chooses none
  QIcon icon(AIToolHandle tool, const QColor& ink) const;  // null for a plug-in's tool

 private:
  struct Entry {
    AIToolHandle handle;
    std::unique_ptr<HostTool> tool;
  };

  void add(std::unique_ptr<HostTool> tool);
  const Entry* find(AIToolHandle handle) const;

  Host& host_;
  std::vector<Entry> tools_;
};

}  // namespace host
