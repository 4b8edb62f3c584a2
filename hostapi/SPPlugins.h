// What the host knows of a plug-in: its name and its place on disk.
#pragma once

#include "AITypes.h"

constexpr char kSPPluginsSuite[] = "SP Plug-ins Suite";
constexpr std::int32_t kSPPluginsSuiteVersion = 4;

struct SPPluginsSuite {
  // The name is copied; it is shown wherever the host lists its plug-ins.
  SPErr (*SetPluginName)(SPPluginRef plugin, const char* name);
  // The file reference of the bundle folder; it lasts as long as the plug-in and is turned into a path
  // by the file path suite.
  SPErr (*GetPluginFileSpecification)(SPPluginRef plugin, SPFileRef* file);
};

extern const SPPluginsSuite* sSPPlugins;
