#include "HostDock.h"

#include <QMenu>
#include <utility>

#include "HostPanel.h"

namespace host {

HostDock::HostDock(QMainWindow& window, const std::string& identifier, const Face& face, HostPanel& panel,
                   std::function<void()> onChange)
    : PanelDock(window, identifier, face, panel, std::move(onChange)), face_(face), panel_(panel) {}

void HostDock::refresh() {
  showFace(face_);
}

void HostDock::openMenu() {
  panel_.makeMenu()->popup(menuCorner());
}

}  // namespace host
