// Whose turn it is: what a plug-in does on its own, outside any message of the host's.
#pragma once

#include "AITypes.h"

constexpr char kAIContextSuite[] = "AI Context Suite";
constexpr std::int32_t kAIContextSuiteVersion = 1010;

struct AIContextSuite {
  // From here to the matching PopAppContext the host takes what happens as the plug-in's doing; whatever
  // changes in documents meanwhile is one undo step, or part of the step that is under way. Contexts nest.
  AIErr (*PushAppContext)(SPPluginRef plugin, AIAppContextHandle* context);
  // Ends the context and all that were pushed within it and not popped. kBadParameterErr for one that has
  // ended already.
  AIErr (*PopAppContext)(AIAppContextHandle context);
};

extern const AIContextSuite* sAIContext;
