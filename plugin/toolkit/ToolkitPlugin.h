// Whose dialogs and icons these are.
#pragma once

#include "SPTypes.h"

namespace qRVADM {

// To be set before the first dialog is made or icon asked for, and for good: what is known of an icon's id is
// kept for the life of the process. Without one no icon is found.
void SetToolkitPlugin(SPPluginRef plugin);
SPPluginRef ToolkitPlugin();

}  // namespace qRVADM
