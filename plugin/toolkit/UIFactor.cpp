#include "UIFactor.h"

#include <QGuiApplication>
#include <cmath>

#include "AIUser.h"

namespace qRVADM {

double UIFactor() {
  AIReal scale = 0;
  if (sAIUser == nullptr || sAIUser->GetUIScaleFactor(&scale) != kNoErr) return 1;
  const double factor = scale / qGuiApp->devicePixelRatio();
  return std::isfinite(factor) && factor > 0 ? factor : 1;
}

}  // namespace qRVADM
