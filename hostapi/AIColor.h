// Paints and the definitions of custom colours.
#pragma once

#include "AITypes.h"

enum AIColorTag : std::int32_t {
  kGrayColor = 0,
  kFourColor = 1,    // process CMYK
  kPattern = 2,      // a pattern of the document
  kCustomColor = 3,  // a named custom colour with a tint
  kGradient = 4,     // a gradient of the document
  kThreeColor = 5,   // RGB
  kNoneColor = 6
};

// All components run from 0 to 1.
struct AIGrayColorStyle {
  AIReal gray;  // 0 white, 1 black
};
struct AIFourColorStyle {
  AIReal cyan, magenta, yellow, black;
};
struct AIThreeColorStyle {
  AIReal red, green, blue;
};
struct AICustomColorStyle {
  AICustomColorHandle color;  // owned by the document
  AIReal tint;                // 0 full strength, 1 no ink
};
struct AIPaintServerStyle {
  AIPaintServerHandle server;  // owned by the document
};

union AIColorUnion {
  AIGrayColorStyle g;
  AIFourColorStyle f;
  AIThreeColorStyle rgb;
  AICustomColorStyle c;
  AIPaintServerStyle s;  // kGradient and kPattern
};

// A paint. All bytes zero is gray 0, white.
struct AIColor {
  AIColorTag kind;
  AIColorUnion c;
};

enum AICustomColorTag : std::int32_t {
  kCustomFourColor = 0,
  kCustomThreeColor = 1,
  kCustomLabColor = 2  // L 0..100, a and b -128..127
};

using AICustomColorFlags = std::int16_t;
constexpr AICustomColorFlags kCustomSpotColor = 1;
constexpr AICustomColorFlags kCustomRegistrationColor = 2;

struct AILabColorStyle {
  AIReal l, a, b;
};

union AICustomColorUnion {
  AIFourColorStyle f;
  AIThreeColorStyle rgb;
  AILabColorStyle lab;
};

// Definition of a custom colour. Its name is kept beside it by the host.
struct AICustomColor {
  AICustomColorTag kind;
  AICustomColorUnion c;
  AICustomColorFlags flag;
};

// A colour of the screen.
struct AIRGBColor {
  std::uint16_t red, green, blue;  // 0 to 65535
};
