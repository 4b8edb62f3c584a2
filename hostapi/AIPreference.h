// The preference store. Keys are a prefix and a suffix; a null prefix is a key of the application itself.
#pragma once

#include "AITypes.h"

constexpr char kAIPreferenceSuite[] = "AI Preference Suite";
constexpr std::int32_t kAIPreferenceSuiteVersion = 1007;

// The getters leave the caller's value alone when there is no such key, with success: pass the default
// in. A value of another kind counts as no such key.
struct AIPreferenceSuite {
  AIErr (*PreferenceExists)(const char* prefix, const char* suffix, AIBoolean* exists);
  AIErr (*GetBooleanPreference)(const char* prefix, const char* suffix, AIBoolean* value);
  AIErr (*PutBooleanPreference)(const char* prefix, const char* suffix, AIBoolean value);
  AIErr (*GetIntegerPreference)(const char* prefix, const char* suffix, std::int32_t* value);
  AIErr (*PutIntegerPreference)(const char* prefix, const char* suffix, std::int32_t value);
  AIErr (*GetRealPreference)(const char* prefix, const char* suffix, AIReal* value);
  AIErr (*PutRealPreference)(const char* prefix, const char* suffix, AIReal value);
  // At most `size` bytes with the closing NUL; a longer value is cut before a whole UTF-8 character.
  AIErr (*GetStringPreference)(const char* prefix, const char* suffix, char* value, std::int32_t size);
  AIErr (*PutStringPreference)(const char* prefix, const char* suffix, const char* value);
};

extern const AIPreferenceSuite* sAIPreference;
