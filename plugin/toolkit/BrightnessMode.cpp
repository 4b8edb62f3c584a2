#include "BrightnessMode.h"

#include "QtManager.h"

namespace qRVADM {

bool IsDark(int brightnessMode) {
  using RVADMQtManager::QtManager;
  switch (brightnessMode) {
    case kOppositeBrightness:
      return !QtManager::IsInDarkMode(nullptr);
    case kLightBrightness:
      return false;
    case kDarkBrightness:
      return true;
    default:
      return QtManager::IsInDarkMode(nullptr);
  }
}

}  // namespace qRVADM
