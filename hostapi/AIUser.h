// Alerts and cursors.
#pragma once

#include "AITypes.h"

constexpr char kAIUserSuite[] = "AI User Suite";
constexpr std::int32_t kAIUserSuiteVersion = 1018;

struct AIUserSuite {
  // Both return when the user has answered; without a window the text goes to standard error.
  AIErr (*MessageAlert)(AIUnicodeStringHandle text);
  AIErr (*ErrorAlert)(AIUnicodeStringHandle text);
  // A plug-in's cursor pictures; disposed of by the plug-in.
  AIErr (*CreateCursorResourceMgr)(SPPluginRef plugin, AIResourceManagerHandle* manager);
  AIErr (*DisposeCursorResourceMgr)(AIResourceManagerHandle manager);
  // The pointer over the drawing, until the next message that tracks it: a picture by resource id in the
  // manager's plug-in, whose middle is the hot spot. The host has a cross where there is no such picture.
  AIErr (*SetCursor)(std::int32_t cursorID, AIResourceManagerHandle manager);
};

extern const AIUserSuite* sAIUser;
