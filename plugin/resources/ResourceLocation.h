// Where the plug-in's own files lie.
#pragma once

#include <cstddef>

#include "AITypes.h"

constexpr std::size_t kResourcePathSize = 2048;  // bytes, with the closing NUL

// Writes the path of the bundle's resource folder, UTF-8, without a "/" at its end. A bundle path of 256
// bytes or more gives kPathTooLongErr, a refusal of the host its code; the path is left alone then.
AIErr LocateResources(SPPluginRef plugin, char (&resourcePath)[kResourcePathSize]);
