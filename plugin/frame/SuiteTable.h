// All suites the plug-in knows of, in the order in which they are acquired.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// Access to one process-wide suite pointer by its own type.
struct SuitePointer {
  const void* (*get)();
  void (*set)(const void* suite);
};

struct SuiteRow {
  const char* name;
  std::int32_t version;  // what the host is asked for
  SuitePointer pointer;  // each row has its own; null while the suite is not held
  bool requested;        // something has asked for this suite; for good
};

constexpr std::size_t kSuiteCount = 217;
using SuiteTable = std::array<SuiteRow, kSuiteCount>;

extern SuiteTable sSuiteTable;  // for the suite manager
