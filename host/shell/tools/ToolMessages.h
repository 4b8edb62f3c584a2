// What the user does with the tools of plug-ins, in messages.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "AITool.h"

namespace host {

class Host;
class Session;
struct ToolRecord;

// Tells the plug-ins which of their tools is selected, whoever selects it, and hands them the pointer. While
// Session::takesCommands is false, nothing that the user does reaches a plug-in. What a plug-in answers is a
// result code; nullopt says that no message was sent, as always for the application's own tools.
class ToolMessages {
 public:
  // Follows the host's table of tools, by its onChange, until it is destroyed. Both must outlive it.
  ToolMessages(Host& host, Session& session);
  ToolMessages(const ToolMessages&) = delete;
  ToolMessages& operator=(const ToolMessages&) = delete;
  ~ToolMessages();

  // Called after another tool was selected and the plug-ins know it.
  std::function<void()> onChange;

  // The user picks a tool from the palette. False if there is no such tool or no command is taken now.
  bool choose(AIToolHandle tool);
  // The user clicks a tool's icon twice.
  std::optional<SPErr> editOptions(AIToolHandle tool);

  // The pointer over the drawing, in document units. A press goes to the selected tool, and so do the drags
  // and the release that follow it, whatever is selected meanwhile.
  std::optional<SPErr> trackCursor(AIRealPoint cursor);
  std::optional<SPErr> mouseDown(AIRealPoint cursor);
  std::optional<SPErr> mouseDrag(AIRealPoint cursor);
  std::optional<SPErr> mouseUp(AIRealPoint cursor);

 private:
  void follow();
  std::optional<SPErr> send(const ToolRecord* tool, const char* selector, AIRealPoint cursor = {0, 0});
  std::optional<SPErr> sendForUser(const ToolRecord* tool, const char* selector, AIRealPoint cursor = {0, 0});

  Host& host_;
  Session& session_;
  AIToolHandle told_ = nullptr;     // the tool whose plug-in knows it as selected
  AIToolHandle pressed_ = nullptr;  // between a press and its release
  bool following_ = false;
};

}  // namespace host
