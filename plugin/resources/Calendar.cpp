#include "Calendar.h"

#include <algorithm>
#include <cstdint>

namespace {

std::int64_t DayOfYear(int day, int month, int yearOfCentury) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  std::int64_t result = day;
  for (int earlier = 1; earlier < std::min(month, 13); ++earlier) result += kDays[earlier - 1];
  if (month > 2 && yearOfCentury % 4 == 0) ++result;
  return result;
}

std::int64_t FloorQuarter(std::int64_t value) {
  return value >= 0 ? value / 4 : -((3 - value) / 4);
}

}  // namespace

int WeekDay(int day, int month, int year) {
  const int yearOfCentury = year % 100;
  const int years = yearOfCentury + (year / 100 == 20 ? 61 : -39);  // since 1939, which began on a Sunday
  const std::int64_t days =
      DayOfYear(day, month, yearOfCentury) + std::int64_t{365} * years + FloorQuarter(years + 2) + 5;
  return static_cast<int>((days % 7 + 7) % 7) + 1;
}

int WeekOfYear(int day, int month, int year) {
  const int yearOfCentury = year % 100;
  const std::int64_t start =
      (std::int64_t{365} * yearOfCentury + FloorQuarter(yearOfCentury - 37) - 14229) % 7;
  const std::int64_t shift = start < 4 ? start + 6 : start - 1;
  return static_cast<int>((DayOfYear(day, month, yearOfCentury) + shift) / 7);
}
