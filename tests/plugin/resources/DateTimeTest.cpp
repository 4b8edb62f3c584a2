// Dates and times as text.
#include <ctime>

#include "Calendar.h"
#include "CopyQString.h"
#include "DateTimeTexts.h"
#include "FormatDateTime.h"
#include "TextBundle.h"

#include <QString>

namespace {

std::tm Day(int dayOfYear, int year) {
  std::tm day{};
  day.tm_year = year - 1900;
  day.tm_mday = 1 + dayOfYear;
  day.tm_hour = 12;
  timegm(&day);
  return day;
}

TEST(Calendar, KnowsTheDaysOfTheWeekFrom1901To2099) {
  int wrong = 0;
  for (int year = 1901; year < 2100; ++year) {
    for (int i = 0; i < 366; ++i) {
      const std::tm day = Day(i, year);
      const int expected = day.tm_wday == 0 ? 7 : day.tm_wday;
      wrong += WeekDay(day.tm_mday, day.tm_mon + 1, day.tm_year + 1900) == expected ? 0 : 1;
      if (day.tm_year + 1900 == 2099 && day.tm_yday == 364) break;
    }
  }
  EXPECT_EQ(wrong, 0);
}

TEST(Calendar, CountsWeeks) {
  int wrong = 0;
  for (int year = 1937; year < 2000; ++year) {
    for (int i = 0; i < 365; ++i) {
      const std::tm day = Day(i, year);
      char text[8];
      std::strftime(text, sizeof text, "%V", &day);
      const int iso = std::atoi(text);
      const int expected = i < 7 && iso > 51 ? 0 : i > 357 && iso == 1 ? 53 : iso;
      wrong += WeekOfYear(day.tm_mday, day.tm_mon + 1, year) == expected ? 0 : 1;
    }
  }
  EXPECT_EQ(wrong, 0);
  // Reckoned as in the century before.
  EXPECT_EQ(WeekOfYear(1, 1, 2026), 0);
  EXPECT_EQ(WeekOfYear(31, 12, 2000), 53);
}

TEST(Calendar, TakesAnyNumbers) {
  for (const int value : {0, -1, 13, 2147483647, -2147483647 - 1}) {
    const int day = WeekDay(value, value, value);
    EXPECT_TRUE(day >= 1 && day <= 7) << value;
    WeekOfYear(value, value, value);
  }
}

class DateTimes : public TextBundle {
 protected:
  DateTimes() {
    Write("rv.asc", R"(
      Date.Formats.Short : "%02n.%02o.%Y"    Date.Formats.Long : "%D, %N %O %Y"
      Time.Formats.Short : ""                Date.Months.Long.3 : "März"
      Date.Months.Short.3 : "Mrz"            Date.MonthDays.1 : "1st"
      Date.WeekDays.7 : "Sonntag")");
    Start();
  }
};

TEST_F(DateTimes, FollowTheirFormats) {
  const std::pair<const char*, const char*> table[] = {
      {"%Y %y %02y %5Y|", "2022 22 22  2022|"},
      {"%c %+c %-c %03c", "20 21 19 020"},
      {"%o %O %Q %n %N", "3 März Mrz 9 9"},
      {"%d %D %w", "3  10"},
      {"%H %h %a %m %s %u", "13 1 PM 5 7 0"},
      {"%02h:%02m:%02s", "01:05:07"},
      {"%-4n|%+n|%.3n|%-6Q|%6Q|%.2Q", "9   |+9|009|Mrz   |   Mrz|Mr"},
      {"%% \\%n \\\\ %5k %", "% %n \\ %5k %"},
      {"%5! x", "%5! x"},
      {"trailing\\", "trailing"},
      {"", ""}};
  for (const auto& [format, text] : table) {
    EXPECT_STREQ(FormatDateTime(format, {9, 3, 2022, 13, 5, 7}), text) << format;
  }
}

TEST_F(DateTimes, AreCutToTheirBuffer) {
  for (const std::string& format :
       {std::string("%999999999999Y"), std::string("%.999999999999Y"), std::string(3000, 'x')}) {
    EXPECT_EQ(std::string(FormatDateTime(format.c_str(), {1, 1, 2000, 0, 0, 0})).size(), 511U);
  }
}

TEST_F(DateTimes, TakeTheirFormatsFromTheLanguage) {
  EXPECT_STREQ(FormatDateShort(1, 3, 1998), "01.03.1998");
  EXPECT_STREQ(FormatDateLong(1, 3, 1998), "Sonntag, 1st März 1998");
  EXPECT_STREQ(FormatTimeShort(1, 2, 3), "");
  EXPECT_EQ(FormatTimeLong(1, 2, 3), nullptr);
}

TEST(CopyQString, IsUTF8) {
  char target[4];
  EXPECT_STREQ(CopyQString(target, QString::fromUtf8("a\xC3\xA9\xC3\xA9"), sizeof target), "a\xC3\xA9");
}

}  // namespace
