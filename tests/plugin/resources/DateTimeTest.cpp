// Dates and times as text.
#include "Calendar.h"
#include "DateTimeTexts.h"
#include "FormatDateTime.h"
#include "TextBundle.h"

namespace {

TEST(Calendar, CountsDaysAndWeeks) {
  const struct {
    int day, month, year, weekDay, week;
  } cases[] = {{15, 6, 1999, 2, 24}, {29, 2, 1996, 4, 9}, {30, 12, 1996, 1, 53}, {1, 1, 1995, 7, 0}};
  for (const auto& date : cases) {
    EXPECT_EQ(WeekDay(date.day, date.month, date.year), date.weekDay) << date.year;
    EXPECT_EQ(WeekOfYear(date.day, date.month, date.year), date.week) << date.year;
  }
  EXPECT_EQ(WeekDay(29, 2, 2000), 2);
  EXPECT_EQ(WeekDay(1, 3, 2004), 1);
  EXPECT_EQ(WeekDay(31, 12, 2099), 4);
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

}  // namespace
