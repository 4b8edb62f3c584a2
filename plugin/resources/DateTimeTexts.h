// Dates and times as the user's language writes them.
#pragma once

// Days and months count from 1, hours from 0 to 23. Null if the language has no such format. The text is
// valid until the next call of any of these.
const char* FormatDateShort(int day, int month, int year);
const char* FormatDateLong(int day, int month, int year);
const char* FormatTimeShort(int hour, int minute, int second);
const char* FormatTimeLong(int hour, int minute, int second);

// 1 January 1980, 0:00:00; `context` is not looked at.
void DefaultDate(void* context, int& day, int& month, int& year);
void DefaultTime(void* context, int& hour, int& minute, int& second);
