// Tools of the tool palette.
#pragma once

#include "AITypes.h"

constexpr char kAIToolSuite[] = "AI Tool Suite";
constexpr std::int32_t kAIToolSuiteVersion = 1019;

struct AIToolSuite {
  AIErr (*GetSelectedTool)(AIToolHandle* tool);  // null if none is selected
  // Makes a tool the current one; kBadParameterErr for an unknown handle.
  AIErr (*SetSelectedTool)(AIToolHandle tool);
  // Goes back to a tool that GetSelectedTool gave, without a change of its group's visible member.
  AIErr (*RestoreSelectedTool)(AIToolHandle tool);
};

extern const AIToolSuite* sAITool;

constexpr char kCallerAITool[] = "AI Tool";
constexpr char kSelectorAIEditToolOptions[] = "AI Edit Options";
constexpr char kSelectorAITrackToolCursor[] = "AI Track Cursor";
constexpr char kSelectorAIToolMouseDown[] = "AI Mouse Down";
constexpr char kSelectorAIToolMouseDrag[] = "AI Mouse Drag";
constexpr char kSelectorAIToolMouseUp[] = "AI Mouse Up";
constexpr char kSelectorAISelectTool[] = "AI Select";
constexpr char kSelectorAIDeselectTool[] = "AI Deselect";
constexpr char kSelectorAIReselectTool[] = "AI Reselect";

struct AIToolMessage {
  SPMessageData d;
  AIToolHandle tool;
  AIRealPoint cursor;  // document units
};
