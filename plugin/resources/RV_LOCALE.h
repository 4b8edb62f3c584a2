// The operations on texts as a table, for who gets them at run time.
#pragma once

#include <cstdarg>

struct RV_LOCALE {
  const char* name;  // "RV_LOCALE"
  const char* (*FormatLocalized)(const char* format, std::va_list arguments);
  const char* (*ReverseLookup)(const char* text);
  const char* (*FormatDateShort)(int day, int month, int year);
  const char* (*FormatDateLong)(int day, int month, int year);
  const char* (*FormatTimeShort)(int hour, int minute, int second);
  const char* (*FormatTimeLong)(int hour, int minute, int second);
  void (*DefaultDate)(void* context, int& day, int& month, int& year);
  void (*DefaultTime)(void* context, int& hour, int& minute, int& second);
};

extern const RV_LOCALE kLocaleMethods;

// The table in use by this process; null until a language was set.
extern const RV_LOCALE* rvLocale;
