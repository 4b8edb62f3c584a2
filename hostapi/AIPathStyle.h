// The paint of a path, and the suite that reads and sets it.
#pragma once

#include "AIColor.h"

enum AILineCap : std::int32_t { kAIButtCap = 0, kAIRoundCap = 1, kAIProjectingCap = 2 };
enum AILineJoin : std::int32_t { kAIMiterJoin = 0, kAIRoundJoin = 1, kAIBevelJoin = 2 };

constexpr int kMaxDashComponents = 6;

struct AIDashStyle {
  std::int16_t length;  // entries used of `array`; 0 is a solid line
  AIReal offset;
  AIReal array[kMaxDashComponents];  // document units
};

struct AIFillStyle {
  AIColor color;
  AIBoolean overprint;
};

struct AIStrokeStyle {
  AIColor color;
  AIBoolean overprint;
  AIReal width;  // document units
  AIDashStyle dash;
  AILineCap cap;
  AILineJoin join;
  AIReal miterLimit;  // a value below 1 is kept as 4, the default
};

// All bytes zero is an unpainted path.
struct AIPathStyle {
  AIBoolean fillPaint;
  AIBoolean strokePaint;
  AIFillStyle fill;
  AIStrokeStyle stroke;
  AIBoolean evenodd;  // fill rule: 0 non-zero winding, 1 even-odd
};

constexpr char kAIPathStyleSuite[] = "AI Path Style Suite";
constexpr std::int32_t kAIPathStyleSuiteVersion = 1014;

// Both take paths and compound paths; a compound path's style is that of all its paths, and a path
// inside a compound path answers with the style of the whole. Other art: kWrongKindErr.
struct AIPathStyleSuite {
  AIErr (*GetPathStyle)(AIArtHandle path, AIPathStyle* style);
  // kLayerLockedErr on a locked or hidden layer; kBadParameterErr for a number that is not finite, a
  // negative width, or a custom colour of another document.
  AIErr (*SetPathStyle)(AIArtHandle path, const AIPathStyle* style);
};

extern const AIPathStyleSuite* sAIPathStyle;
