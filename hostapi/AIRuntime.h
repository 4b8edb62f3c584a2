// State of the running application.
#pragma once

#include "AITypes.h"

constexpr char kAIRuntimeSuite[] = "AI Runtime Suite";
constexpr std::int32_t kAIRuntimeSuiteVersion = 1013;

struct AIRuntimeSuite {
  // Non-zero while the application ends without storing what users changed (an emergency exit).
  AIBoolean (*IsEndingWithoutSaving)();
};

extern const AIRuntimeSuite* sAIRuntime;
