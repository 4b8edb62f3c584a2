// Files read piece by piece through the host.
#pragma once

#include <cstddef>

#include "AITypes.h"

constexpr char kAIDataFilterSuite[] = "AI Data Filter Suite";
constexpr std::int32_t kAIDataFilterSuiteVersion = 1009;

constexpr char kAIReadFilterMode[] = "read";

constexpr AIErr kFilterReadErr = ErrorCode("READ");  // the file can't be read any further

using AIDataFilterHandle = struct AIDataFilterRecord*;

struct AIDataFilterSuite {
  // A filter on the file at an absolute path in UTF-8. It belongs to whoever made it until UnlinkDataFilter,
  // linked or not. kSPUnsupportedError for any mode but kAIReadFilterMode. Null on failure.
  AIErr (*NewFileDataFilter)(const char* path, const char* mode, AIDataFilterHandle* filter);
  // Opens the file. kNoSuchItemErr if it can't be opened or is not a regular file; kBadParameterErr for a
  // filter that is linked already.
  AIErr (*LinkDataFilter)(AIDataFilterHandle filter);
  // Reads at most *count bytes and sets *count to what it got: less than asked for at the end of the file,
  // and 0 from there on. kFilterReadErr, with *count 0, if nothing more is to be had; kBadParameterErr
  // for a filter that is not linked.
  AIErr (*ReadDataFilter)(AIDataFilterHandle filter, char* buffer, std::size_t* count);
  // Closes the file and ends the filter.
  AIErr (*UnlinkDataFilter)(AIDataFilterHandle filter);
};

extern const AIDataFilterSuite* sAIDataFilter;
