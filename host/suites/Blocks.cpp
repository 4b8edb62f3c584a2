#include "Blocks.h"

#include <cstdint>
#include <cstdlib>

namespace host {

SPErr allocateBlock(std::size_t size, void** block) {
  if (block == nullptr) return kSPBadParameterError;
  // No object is larger than a difference of two addresses can tell.
  *block = size > PTRDIFF_MAX ? nullptr : std::malloc(size == 0 ? 1 : size);
  return *block == nullptr ? kSPOutOfMemoryError : kSPNoError;
}

SPErr freeBlock(void* block) {
  std::free(block);
  return kSPNoError;
}

}  // namespace host
