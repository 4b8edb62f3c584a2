#include "HMX_AITool.h"

#include "HMX_AIPlugin.h"

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
