// Arithmetic of points and rectangles.
#pragma once

#include "AITypes.h"

constexpr char kAIRealMathSuite[] = "AI Real Math Suite";
constexpr std::int32_t kAIRealMathSuiteVersion = 1005;

struct AIRealMathSuite {
  // 1 if `inner` lies wholly in `outer`, edges allowed to touch.
  AIBoolean (*AIRealRectInAIRealRect)(const AIRealRect* inner, const AIRealRect* outer);
};

extern const AIRealMathSuite* sAIRealMath;
