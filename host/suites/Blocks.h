// Memory that plug-ins get from the host.
#pragma once

#include <cstddef>

#include "AITypes.h"

namespace host {

// Aligned for any type, owned by the caller until freeBlock; size 0 gives a block too.
// kSPOutOfMemoryError leaves *block null.
SPErr allocateBlock(std::size_t size, void** block);
SPErr freeBlock(void* block);  // null is allowed

}  // namespace host
