// Whose bundle icons are loaded from.
#pragma once

#include "SPTypes.h"

namespace qRVADM {

// To be set before the first icon is asked for, and for good: what is known of an id is kept for the life
// of the process. Without one no icon is found.
void SetIconPlugin(SPPluginRef plugin);
SPPluginRef IconPlugin();

}  // namespace qRVADM
