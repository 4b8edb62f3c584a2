#include "DateTimeTexts.h"

#include "FormatDateTime.h"
#include "LookupResource.h"
#include "TextModules.h"

namespace {

const char* Formatted(const char* key, const DateTime& moment) {
  EnsureTextInitialised();
  const RDB_Text format = LookupResource(nullptr, nullptr, key);
  return format ? FormatDateTime(format.get(), moment) : nullptr;
}

}  // namespace

const char* FormatDateShort(int day, int month, int year) {
  return Formatted("Date.Formats.Short", {day, month, year, 0, 0, 0});
}

const char* FormatDateLong(int day, int month, int year) {
  return Formatted("Date.Formats.Long", {day, month, year, 0, 0, 0});
}

const char* FormatTimeShort(int hour, int minute, int second) {
  return Formatted("Time.Formats.Short", {0, 0, 0, hour, minute, second});
}

const char* FormatTimeLong(int hour, int minute, int second) {
  return Formatted("Time.Formats.Long", {0, 0, 0, hour, minute, second});
}

void DefaultDate(void* /*context*/, int& day, int& month, int& year) {
  day = 1;
  month = 1;
  year = 1980;
}

void DefaultTime(void* /*context*/, int& hour, int& minute, int& second) {
  hour = 0;
  minute = 0;
  second = 0;
}
