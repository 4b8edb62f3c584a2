// Whether a picture comes in a light and a dark version.
#pragma once

#include "SPTypes.h"

namespace qRVADM {

// Asks for the files of both versions, whatever the id's range.
bool HasBrightnessVersions(SPPluginRef plugin, int id);

}  // namespace qRVADM
