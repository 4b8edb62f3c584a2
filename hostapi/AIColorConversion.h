// Colours from one colour space to another.
#pragma once

#include "AITypes.h"

constexpr char kAIColorConversionSuite[] = "AI Color Conversion Suite";
constexpr std::int32_t kAIColorConversionSuiteVersion = 1010;

enum AIColorSpace : std::int32_t {
  kGraySpace = 1,  // light: 0 black, 1 white; neutral colours of kRGBSpace
  kRGBSpace = 2,   // red, green, blue of sRGB (IEC 61966-2-1), 0..1
  kCMYKSpace = 4,  // cyan, magenta, yellow, black, 0..1: inks of the user's CMYK profile
  kLabSpace = 7    // CIE L*a*b* of D50: L 0..100, a and b -128..127
};

// One component of a sample. A sample has one component in kGraySpace, four in kCMYKSpace, else three.
using AISampleComponent = float;

enum AIConversionOptions : std::int32_t {
  kDefaultConversion = 0  // relative colorimetric, with black point compensation
};

struct AIColorConversionSuite {
  // Both samples belong to the caller and may be the same array. Components beyond their range count as
  // the end of it. The result lies within its ranges; `inGamut`, which may be null, is set to 0 if that
  // cost more than a slight difference, else to 1. kBadParameterErr, and nothing written, for an unknown
  // space or option, a null sample or a component that is not finite.
  //
  // Without a CMYK profile inks are converted plainly: red = (1 - cyan)(1 - black), and so on.
  AIErr (*ConvertSample)(AIColorSpace source, const AISampleComponent* sample, AIColorSpace destination,
                         AISampleComponent* result, AIConversionOptions options, AIBoolean* inGamut);
};

extern const AIColorConversionSuite* sAIColorConversion;
