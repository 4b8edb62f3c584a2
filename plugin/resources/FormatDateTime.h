// A moment by a format of the text files.
#pragma once

#include <cstddef>

struct DateTime {
  int day, month, year;  // day and month from 1
  int hour, minute, second;
};

constexpr std::size_t kDateTimeSize = 512;  // bytes, with the closing NUL

// A backslash takes the next byte as it is, "%%" is "%". A conversion is "%", flags, width and precision as
// for printf, and a letter; any other letter is copied with what stands before it.
//   Y year   y year of the century   c century ("%+c" the next one, "%-c" the one before)
//   o month   O its name   Q its short name   n day of the month   N its text, else the day
//   d weekday, 1 for Monday   D its name   w week of the year
//   H hour   h hour of 12   a AM or PM   m minute   s second   u 0
// Names come from the text files; one that is missing prints nothing. The result lies in a buffer of its own,
// cut to it, until the next call.
const char* FormatDateTime(const char* format, const DateTime& moment);
