#include "PanelIcons.h"

#include <map>

#include "QtManager.h"

namespace host {
namespace {

std::map<const void*, PanelIconIds>& idsByPanel() {
  static std::map<const void*, PanelIconIds> ids;
  return ids;
}

}  // namespace

std::optional<PanelIconIds> panelIconIds(const void* panel) {
  const auto found = idsByPanel().find(panel);
  if (found == idsByPanel().end()) return std::nullopt;
  return found->second;
}

}  // namespace host

void RVADMQtManager::SharedResources::RegisterPanelIcon(void* panel, int lightIconId, int darkIconId) {
  if (panel != nullptr) host::idsByPanel()[panel] = {lightIconId, darkIconId};
}

void RVADMQtManager::SharedResources::UnregisterPanelIcon(void* panel) {
  host::idsByPanel().erase(panel);
}
