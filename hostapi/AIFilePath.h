// File paths of the host.
#pragma once

#include "AITypes.h"

constexpr char kAIFilePathSuite[] = "AI File Path Suite";
constexpr std::int32_t kAIFilePathSuiteVersion = 1007;

// A path belongs to whoever made it until Dispose.
struct AIFilePathSuite {
  AIErr (*New)(AIFilePathHandle* path);  // an empty path
  AIErr (*Dispose)(AIFilePathHandle path);
  AIErr (*SetFromFileReference)(AIFilePathHandle path, SPFileRef file);
  AIErr (*GetFullPath)(AIFilePathHandle path, AIUnicodeStringHandle text);  // absolute, "/" between names
};

extern const AIFilePathSuite* sAIFilePath;
