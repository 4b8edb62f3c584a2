// Is there art under a point?
#pragma once

#include "AITypes.h"

// What counts as a hit; a sum of these.
enum AIHitRequest : std::int32_t {
  kFillHitRequest = 1,    // the filled inside of a path
  kStrokeHitRequest = 2,  // the stroke
  kBodyHitRequest = 4,    // text, images and other art of its own kind
  kAllHitRequest = 7
};

struct AIHitData {
  AIBoolean hit;  // 1 if something was hit
};

constexpr char kAIHitTestSuite[] = "AI Hit Test Suite";
constexpr std::int32_t kAIHitTestSuiteVersion = 1007;

// What is drawn is hit: hidden layers and art never are, locked ones are, clipped-off parts are not.
struct AIHitTestSuite {
  // `art` null tests all art of the document. The reference is good until the next HitTest; there is
  // nothing to release.
  AIErr (*HitTest)(AIArtHandle art, const AIRealPoint* point, std::int32_t request, AIHitRef* hit);
  AIErr (*GetHitData)(AIHitRef hit, AIHitData* data);
  AIErr (*GetHitArt)(AIHitRef hit, AIArtHandle* art);  // the topmost art hit; null if none
};

extern const AIHitTestSuite* sAIHitTest;
