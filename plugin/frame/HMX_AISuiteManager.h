// Acquires and releases the suites of the table.
#pragma once

#include <cstdint>

#include "SPBasic.h"

struct SuiteRow;

// Levels of acquisition nest: the outermost fetches every requested suite, the end of the outermost gives
// all back and clears all pointers, and what lies between costs a counter. Results are codes of the host.
class HMX_AISuiteManager {
 public:
  HMX_AISuiteManager();  // clears the pointer and the mark of every row
  HMX_AISuiteManager(const HMX_AISuiteManager&) = delete;
  HMX_AISuiteManager& operator=(const HMX_AISuiteManager&) = delete;
  virtual ~HMX_AISuiteManager() = default;

  static HMX_AISuiteManager& Instance();  // the one of the process, to its end

  // No level is open, and there is no way to the host until SetBasicSuite. Pointers and marks stay.
  void Reset();
  // `basic` stays the way to the host beyond a release, while sSPBasic is cleared by it.
  void SetBasicSuite(const SPBasicSuite* basic);

  // Marks a suite as needed; while a level is open it is acquired at once. 1 for a suite that is not in
  // the table, otherwise 0 or the host's refusal, which leaves the mark. A marked suite costs no call.
  SPErr Request(const char* name);
  SPErr Request(const char* name, std::int32_t version);

  // Opens a level, also when it fails. The outermost stops at the first refusal and returns it; suites
  // behind that one stay null.
  SPErr Acquire();
  // Closes a level; only for one that is open. The outermost returns the code of its last release.
  SPErr Release();

  std::int32_t nesting = 0;             // open levels
  const SPBasicSuite* basic = nullptr;  // not owned

 private:
  SPErr Mark(SuiteRow* row);
  SPErr Fetch(SuiteRow& row);
};
