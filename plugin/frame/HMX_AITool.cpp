#include "HMX_AITool.h"

#include <string>

#include "HMX_AIPlugin.h"
#include "HasBrightnessVersions.h"
#include "Localize.h"
#include "ResourceID.h"

namespace {

void SetText(const char* title, AIAddToolData& data) {
  const std::string text = Localize(title);  // the buffer is the next one's
  data.title = ai::UnicodeString(text);
  data.tooltip = ai::UnicodeString(text);
}

void SetIcon(SPPluginRef plugin, int iconID, AIAddToolData& data) {
  const bool isPair = qRVADM::HasBrightnessVersions(plugin, iconID);
  data.normalIconResID = isPair ? iconID + qRVADM::kLightVersion : iconID;
  data.darkIconResID = isPair ? iconID + qRVADM::kDarkVersion : iconID;
  data.iconType = qRVADM::IsSVG(iconID) ? kSVGToolIcon : kPNGToolIcon;
}

}  // namespace

HMX_AITool::HMX_AITool(HMX_AIPlugin* owner, const char* name, const char* title, std::int32_t options,
                       int iconID, AIAddToolData* data)
    : plugin(owner) {
  AIAddToolData ownPlace;
  AIAddToolData& record = data != nullptr ? *data : ownPlace;
  SetText(title, record);
  SetIcon(plugin->GetPluginRef(), iconID, record);
  plugin->RequestSuite(kAIToolSuite);
  if (sAITool == nullptr) return;
  const AIErr error = sAITool->AddTool(plugin->GetPluginRef(), name, &record, options, &tool);
  if (error != kNoErr) tool = nullptr;
}

HMX_AITool::~HMX_AITool() {
  plugin->RemoveTool(this);
}

AIErr HMX_AITool::EditOptions(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AITool::TrackCursor(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AITool::MouseDown(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AITool::MouseDrag(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AITool::MouseUp(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AITool::Select(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AITool::Deselect(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AITool::Reselect(const AIToolMessage& /*message*/) {
  return kNoErr;
}
