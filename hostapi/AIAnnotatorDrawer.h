// What annotators draw with.
#pragma once

#include "AIAnnotator.h"
#include "AIColor.h"

constexpr char kAIAnnotatorDrawerSuite[] = "AI Annotator Drawer Suite";
constexpr std::int32_t kAIAnnotatorDrawerSuiteVersion = 1007;

// A drawer is that of the message being handled: black, with lines one pixel wide, at its start.
// kBadParameterErr for any other.
struct AIAnnotatorDrawerSuite {
  AIErr (*SetColor)(AIAnnotatorDrawer* drawer, const AIRGBColor* color);
  AIErr (*SetLineWidth)(AIAnnotatorDrawer* drawer, AIReal pixels);  // above 0
  // The whole rectangle if `fill` is not 0, otherwise its outline.
  AIErr (*DrawRect)(AIAnnotatorDrawer* drawer, const AIRect* rect, AIBoolean fill);
};

extern const AIAnnotatorDrawerSuite* sAIAnnotatorDrawer;
