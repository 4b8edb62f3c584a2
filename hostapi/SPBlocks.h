// Memory blocks of the host.
#pragma once

#include <cstddef>

#include "SPTypes.h"

constexpr char kSPBlocksSuite[] = "SP Blocks Suite";
constexpr std::int32_t kSPBlocksSuiteVersion = 2;

struct SPBlocksSuite {
  // A block aligned for any type, owned by the caller until FreeBlock. `debugName` may be null.
  // kSPOutOfMemoryError leaves *block null.
  SPErr (*AllocateBlock)(std::size_t size, const char* debugName, void** block);
  SPErr (*FreeBlock)(void* block);  // null is allowed
};

extern const SPBlocksSuite* sSPBlocks;
