#include "DateKeys.h"

#include <string>

namespace texts {
namespace {

constexpr const char* kFormats[] = {"Date.Formats.Short", "Date.Formats.Long", "Time.Formats.Short",
                                    "Time.Formats.Long"};

// Words that are numbered from 1.
struct Words {
  const char* group;
  int count;
};
constexpr Words kWords[] = {
    {"Date.Months.Long.", 12}, {"Date.Months.Short.", 12}, {"Date.MonthDays.", 31}, {"Date.WeekDays.", 7}};

constexpr std::string_view kRun = "+-.0123456789";  // what may stand between "%" and the letter
constexpr std::string_view kLetters = "YycoOQnNdDwHhamsu";

}  // namespace

void AskForDates(AskedKeys& keys) {
  for (const char* const format : kFormats) keys[format] = {AskedKey::Kind::DateFormat, "", "dates"};
  for (const Words& words : kWords) {
    for (int i = 1; i <= words.count; ++i) {
      keys[words.group + std::to_string(i)] = {AskedKey::Kind::DateWord, "", "dates"};
    }
  }
}

bool IsDateFormat(std::string_view format) {
  while (!format.empty()) {
    const char byte = format.front();
    format.remove_prefix(1);
    if (byte != '%' && byte != '\\') continue;
    if (byte == '%' && format.substr(0, 1) != "%") {
      const std::size_t letter = format.find_first_not_of(kRun);
      if (letter == std::string_view::npos || kLetters.find(format[letter]) == std::string_view::npos) {
        return false;
      }
      format.remove_prefix(letter);
    }
    if (format.empty()) return false;
    format.remove_prefix(1);
  }
  return true;
}

}  // namespace texts
