// Resources of a plug-in by id, as bytes.
#pragma once

#include "SPTypes.h"

namespace qRVADM {

// Reads the file that the plug-in's table has for the id into `*data`; the caller frees it with free().
// Gives the number of bytes. With `data` null only tells whether the file can be opened: 1 or 0.
// 0, with `*data` null, if the table or the file is missing, the file lies outside of the bundle's resource
// folder, is empty, can't be read or does not fit into memory.
int LoadResource(SPPluginRef plugin, int id, char** data);

}  // namespace qRVADM
