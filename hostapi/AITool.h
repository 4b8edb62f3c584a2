// Tools of the tool palette.
#pragma once

#include "AITypes.h"
#include "IAIUnicodeString.h"

constexpr char kAIToolSuite[] = "AI Tool Suite";
constexpr std::int32_t kAIToolSuiteVersion = 1019;

// Number of a tool, by which tools name each other: its place in the order of registration, from 0.
using AIToolType = std::int16_t;
constexpr AIToolType kNoTool = -2;

// What the ids of an icon stand for, in the plug-in's bundle.
enum AIToolIconType : std::int8_t { kSVGToolIcon = 1, kPNGToolIcon = 2 };

constexpr std::int32_t kToolWantsToTrackCursorOption = 1;  // gets kSelectorAITrackToolCursor

struct AIAddToolData {
  ai::UnicodeString title;  // for people
  ai::UnicodeString tooltip;
  std::int32_t normalIconResID = 0;     // for a light ground
  std::int32_t darkIconResID = 0;       // for a dark one; both by resource id in the plug-in's bundle
  AIToolType sameGroupAs = kNoTool;     // shares the place of this tool; kNoTool: has a place of its own
  AIToolType sameToolsetAs = kNoTool;   // stands beside this tool; kNoTool: begins a run of its own
  std::int8_t iconType = kPNGToolIcon;  // an AIToolIconType
};

// Values that a tool can show in the host's info display, one AIReal each. A list of them ends with kInfoEnd
// and has at most kMaxInfoVariables before it.
using AIToolInfoVariable = std::int16_t;
constexpr AIToolInfoVariable kInfoDocX = 15;  // document units
constexpr AIToolInfoVariable kInfoDocY = 16;
constexpr AIToolInfoVariable kInfoEnd = -1;
constexpr int kMaxInfoVariables = 16;

struct AIToolSuite {
  // Registered for the host's life. `name` is in no language and need not be unique. The data is read in the
  // call. kBadParameterErr for an unknown plug-in, text or tool in it.
  AIErr (*AddTool)(SPPluginRef plugin, const char* name, const AIAddToolData* data, std::int32_t options,
                   AIToolHandle* tool);
  // Of the first tool of exactly this name; kNoSuchItemErr, with *number left alone, if there is none.
  AIErr (*GetToolNumberFromName)(const char* name, AIToolType* number);
  AIErr (*GetSelectedTool)(AIToolHandle* tool);  // null if none is selected
  // Makes a tool the current one; kBadParameterErr for an unknown handle.
  AIErr (*SetSelectedTool)(AIToolHandle tool);
  // Goes back to a tool that GetSelectedTool gave, without a change of its group's visible member.
  AIErr (*RestoreSelectedTool)(AIToolHandle tool);
  // Which variables the info display shows while the tool is selected; replaces those it had.
  // kBadParameterErr for a list without an end or with an unknown variable.
  AIErr (*SetToolInfoVars)(AIToolHandle tool, const AIToolInfoVariable* variables);
  // Values for the info display, in the order of the list. Codes as for SetToolInfoVars.
  AIErr (*SetToolInfoVarValues)(const AIToolInfoVariable* variables, const AIReal* const* values);
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
