#include "ToolMessages.h"

#include <utility>

#include "Host.h"
#include "Session.h"

namespace host {
namespace {

// Plug-ins that answer each selection with another one are left to themselves after so many.
constexpr int kMostRounds = 16;

}  // namespace

ToolMessages::ToolMessages(Host& host, Session& session) : host_(host), session_(session) {
  host_.tools().onChange = [this](const ToolRecord*, const ToolRecord*) { follow(); };
  follow();
}

ToolMessages::~ToolMessages() {
  host_.tools().onChange = nullptr;
}

bool ToolMessages::choose(AIToolHandle tool) {
  if (!session_.takesCommands()) return false;
  const ToolRecord* selected = host_.tools().selected();
  if (selected == nullptr || selected->handle != tool) return host_.tools().select(tool);
  send(selected, kSelectorAIReselectTool);
  return true;
}

std::optional<SPErr> ToolMessages::editOptions(AIToolHandle tool) {
  return sendForUser(host_.tools().all().find(tool), kSelectorAIEditToolOptions);
}

std::optional<SPErr> ToolMessages::trackCursor(AIRealPoint cursor) {
  const ToolRecord* tool = host_.tools().selected();
  if (tool == nullptr || !tool->tracksCursor) return std::nullopt;
  return sendForUser(tool, kSelectorAITrackToolCursor, cursor);
}

std::optional<SPErr> ToolMessages::mouseDown(AIRealPoint cursor) {
  const ToolRecord* tool = host_.tools().selected();
  if (tool == nullptr || !session_.takesCommands()) return std::nullopt;
  pressed_ = tool->handle;
  return send(tool, kSelectorAIToolMouseDown, cursor);
}

std::optional<SPErr> ToolMessages::mouseDrag(AIRealPoint cursor) {
  return sendForUser(host_.tools().all().find(pressed_), kSelectorAIToolMouseDrag, cursor);
}

std::optional<SPErr> ToolMessages::mouseUp(AIRealPoint cursor) {
  const AIToolHandle pressed = std::exchange(pressed_, nullptr);
  return sendForUser(host_.tools().all().find(pressed), kSelectorAIToolMouseUp, cursor);
}

// A tool may be selected while another hears of its own selection: the round that is under way takes that up.
void ToolMessages::follow() {
  if (following_) return;
  following_ = true;
  const ToolTable& tools = host_.tools();
  for (int round = 0; round < kMostRounds && tools.selected() != tools.all().find(told_); ++round) {
    const ToolRecord* now = tools.selected();
    const AIToolHandle before = std::exchange(told_, now == nullptr ? nullptr : now->handle);
    send(tools.all().find(before), kSelectorAIDeselectTool);
    send(now, kSelectorAISelectTool);
  }
  following_ = false;
  if (onChange) onChange();
}

std::optional<SPErr> ToolMessages::send(const ToolRecord* tool, const char* selector, AIRealPoint cursor) {
  if (tool == nullptr || tool->plugin == nullptr) return std::nullopt;
  AIToolMessage message{};
  message.tool = tool->handle;
  message.cursor = cursor;
  return session_.send(tool->plugin, kCallerAITool, selector, message.d, tool->title);
}

std::optional<SPErr> ToolMessages::sendForUser(const ToolRecord* tool, const char* selector,
                                               AIRealPoint cursor) {
  return session_.takesCommands() ? send(tool, selector, cursor) : std::nullopt;
}

}  // namespace host
