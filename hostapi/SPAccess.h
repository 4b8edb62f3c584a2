// Access to a loaded plug-in's code.
#pragma once

#include "SPTypes.h"

constexpr char kSPAccessSuite[] = "SP Access Suite";
constexpr std::int32_t kSPAccessSuiteVersion = 3;

struct SPAccessSuite {
  // The access of a plug-in; it lasts as long as the plug-in is loaded and needs no release.
  SPErr (*GetPluginAccess)(SPPluginRef plugin, SPAccessRef* access);
};

extern const SPAccessSuite* sSPAccess;
