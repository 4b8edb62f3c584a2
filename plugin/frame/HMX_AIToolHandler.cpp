#include "HMX_AIToolHandler.h"

#include <algorithm>

#include "FindByHandle.h"
#include "FrameErrors.h"
#include "HostText.h"

namespace {

using Operation = AIErr (HMX_AITool::*)(const AIToolMessage& message);

struct Route {
  const char* selector;
  Operation operation;
};

constexpr Route kRoutes[] = {
    {kSelectorAIEditToolOptions, &HMX_AITool::EditOptions},
    {kSelectorAITrackToolCursor, &HMX_AITool::TrackCursor},
    {kSelectorAIToolMouseDown, &HMX_AITool::MouseDown},
    {kSelectorAIToolMouseDrag, &HMX_AITool::MouseDrag},
    {kSelectorAIToolMouseUp, &HMX_AITool::MouseUp},
    {kSelectorAISelectTool, &HMX_AITool::Select},
    {kSelectorAIDeselectTool, &HMX_AITool::Deselect},
    {kSelectorAIReselectTool, &HMX_AITool::Reselect},
};

template <typename Slots>
auto FindTool(Slots& slots, const HMX_AITool* tool) {
  return std::find_if(slots.begin(), slots.end(),
                      [tool](const std::unique_ptr<HMX_AITool>& slot) { return slot.get() == tool; });
}

}  // namespace

HMX_AIToolHandler::~HMX_AIToolHandler() {
  for (std::unique_ptr<HMX_AITool>& slot : slots) slot.reset();  // empty before the tool looks for itself
}

AIErr HMX_AIToolHandler::Add(HMX_AITool* tool) {
  if (FindTool(slots, tool) != slots.end()) return kNoErr;
  const auto free = FindTool(slots, nullptr);
  if (free == slots.end()) return kToolTableFullErr;
  free->reset(tool);
  count = std::max(count, static_cast<std::int32_t>(free - slots.begin()) + 1);
  return kNoErr;
}

AIErr HMX_AIToolHandler::Remove(HMX_AITool* tool) {
  const auto slot = FindTool(slots, tool);
  if (slot == slots.end()) return kToolNotFoundErr;
  (void)slot->release();
  return kNoErr;
}

AIErr HMX_AIToolHandler::HandleMessage(const char* caller, const char* selector, const void* message) {
  if (!IsEqual(caller, kCallerAITool) || count < 1) return kNoErr;
  const auto& record = *static_cast<const AIToolMessage*>(message);
  HMX_AITool* const tool = FindByHandle(slots.begin(), slots.begin() + count, &HMX_AITool::tool, record.tool);
  if (tool == nullptr) return kNoErr;
  for (const Route& route : kRoutes) {
    if (IsEqual(selector, route.selector)) return (tool->*route.operation)(record);
  }
  return kNoErr;
}
