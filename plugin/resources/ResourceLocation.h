// Where the plug-in's own files lie.
#pragma once

#include <cstddef>

#include "AITypes.h"

constexpr std::size_t kResourcePathSize = 2048;  // bytes, with the closing NUL

constexpr AIErr kNormalFormErr = ErrorCode("fGCS");

// Writes the path of the bundle's resource folder, UTF-8 in normal form C, without a "/" at its end, and
// makes the text system find it. A bundle path of 256 bytes or more gives kPathTooLongErr, one whose normal
// form is that long kNormalFormErr, a refusal of the host its code; nothing is changed then.
AIErr LocateResources(SPPluginRef plugin, char (&resourcePath)[kResourcePathSize]);

// Tells the text system, through the environment of the process, where the resources lie and which language
// the user prefers. `path` is UTF-8 of less than 512 bytes.
void SetLocaleEnvironment(const char* path);

// "pt_BR" for users of Portuguese or Brazilian Portuguese, whatever they understand besides; "Bundle", the
// bundle's own choice, for all others.
const char* ChooseLanguage();
