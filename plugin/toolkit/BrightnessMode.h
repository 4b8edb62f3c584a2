// Which version of an icon is meant.
#pragma once

namespace qRVADM {

enum BrightnessMode : int {
  kHostBrightness = 0,
  kOppositeBrightness = 1,  // of the host's
  kLightBrightness = 2,
  kDarkBrightness = 3,
};

// Does the mode stand for the dark version now? An unknown mode is the host's brightness.
bool IsDark(int brightnessMode);

}  // namespace qRVADM
