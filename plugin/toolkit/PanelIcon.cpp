#include "PanelIcon.h"

#include "AIPanel.h"
#include "HasBrightnessVersions.h"
#include "QtManager.h"
#include "ResourceID.h"
#include "ToolkitPlugin.h"

namespace qRVADM {

void SetPanelIcon(AIPanelRef panel, int iconId) {
  if (iconId == 0) return;
  const bool versions = HasBrightnessVersions(ToolkitPlugin(), iconId);
  const std::int32_t light = versions ? iconId + kLightVersion : iconId;
  const std::int32_t dark = versions ? iconId + kDarkVersion : iconId;
  if (IsSVG(light) || IsSVG(dark)) {
    sAIPanel->SetSVGIcons(panel, light, dark);
    return;
  }
  const AIPanelIcons icons{&light, &dark, 1};
  sAIPanel->SetIcons(panel, &icons);
  RVADMQtManager::SharedResources::RegisterPanelIcon(panel, light, dark);
}

}  // namespace qRVADM
