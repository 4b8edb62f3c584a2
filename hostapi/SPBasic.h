// The suite through which all others are had.
#pragma once

#include <cstddef>

#include "SPTypes.h"

constexpr char kSPBasicSuite[] = "SP Basic Suite";
constexpr std::int32_t kSPBasicSuiteVersion = 4;

struct SPBasicSuite {
  // Writes a table that stays valid until as many releases as acquisitions. On failure *suite is null
  // and the code is kSPSuiteNotFoundError, or kSPBadParameterError for a null argument.
  SPErr (*AcquireSuite)(const char* name, std::int32_t version, const void** suite);
  // kSPSuiteNotFoundError if the suite is not held.
  SPErr (*ReleaseSuite)(const char* name, std::int32_t version);
  // 1 if both strings hold the same bytes, else 0; a null string equals nothing.
  std::int32_t (*IsEqual)(const char* a, const char* b);
  // A block aligned for any type, owned by the caller until FreeBlock.
  SPErr (*AllocateBlock)(std::size_t size, void** block);
  SPErr (*FreeBlock)(void* block);
};

extern const SPBasicSuite* sSPBasic;  // defined by the plug-in that compiles this header in
