// A tool of the host's palette.
#pragma once

#include "AITool.h"

class HMX_AIPlugin;

// Results go to the host. The base answers 0 to everything.
class HMX_AITool {
 public:
  // Adds a tool with the translation of `title` to the host's palette. With an icon in a light and a dark
  // version the host gets both. `data` says where the tool stands, and gets all the rest filled in; null: in
  // a group and a tool set of its own. A refusal leaves `tool` null and is not reported. `owner` is not
  // owned. Throws ai::Error when the host refuses the text.
  HMX_AITool(HMX_AIPlugin* owner, const char* name, const char* title, std::int32_t options, int iconID,
             AIAddToolData* data);
  HMX_AITool(const HMX_AITool&) = delete;
  HMX_AITool& operator=(const HMX_AITool&) = delete;
  virtual ~HMX_AITool();  // leaves its table; the host's tool stays

  virtual AIErr EditOptions(const AIToolMessage& message);  // double click on the tool's icon
  virtual AIErr TrackCursor(const AIToolMessage& message);  // the pointer moves, no button down
  virtual AIErr MouseDown(const AIToolMessage& message);
  virtual AIErr MouseDrag(const AIToolMessage& message);
  virtual AIErr MouseUp(const AIToolMessage& message);
  virtual AIErr Select(const AIToolMessage& message);
  virtual AIErr Deselect(const AIToolMessage& message);
  virtual AIErr Reselect(const AIToolMessage& message);

  AIToolHandle tool = nullptr;  // null: no message ever arrives
  HMX_AIPlugin* plugin;
};
