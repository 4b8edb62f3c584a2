#include "HasBrightnessVersions.h"

#include <limits>

#include "LoadResource.h"
#include "ResourceID.h"

namespace qRVADM {

bool HasBrightnessVersions(SPPluginRef plugin, int id) {
  if (id > std::numeric_limits<int>::max() - kDarkVersion) return false;
  return LoadResource(plugin, id + kLightVersion, nullptr) != 0 &&
         LoadResource(plugin, id + kDarkVersion, nullptr) != 0;
}

}  // namespace qRVADM
