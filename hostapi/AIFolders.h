// Folders of the application.
#pragma once

#include "AITypes.h"

constexpr char kAIFoldersSuite[] = "AI Folders Suite";
constexpr std::int32_t kAIFoldersSuiteVersion = 1005;

enum AIFolderType : std::int32_t {
  kAIPluginsFolderType = 1,        // where plug-ins lie
  kAIUserWritablePluginsType = 24  // a user's own plug-ins
};

struct AIFoldersSuite {
  // kNoSuchItemErr for a type the host has no folder for. The folder need not exist.
  AIErr (*FindFolder)(std::int32_t type, AIFilePathHandle folder);
};

extern const AIFoldersSuite* sAIFolders;
