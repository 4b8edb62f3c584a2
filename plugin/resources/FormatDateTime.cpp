#include "FormatDateTime.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "Calendar.h"
#include "CopyUTF8.h"
#include "LookupResource.h"

namespace {

// Flags, width and precision between "%" and its letter, in bounds: printf is never asked for more than
// fits.
struct Layout {
  explicit Layout(std::string_view run);

  std::string Number(int value) const { return Printed("d", value); }
  std::string Text(const char* text) const { return Printed("s", text); }

  bool plus = false, minus = false, zero = false;
  int width = 0;
  int precision = -1;  // below 0: none

 private:
  template <typename Value>
  std::string Printed(const char* kind, Value value) const;
};

constexpr int kMostPlaces = kDateTimeSize - 1;

int Places(std::string_view digits) {
  int places = 0;
  for (const char digit : digits) places = std::min(places * 10 + (digit - '0'), kMostPlaces);
  return places;
}

bool IsDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

std::size_t DigitsFrom(std::string_view run, std::size_t at) {
  std::size_t end = at;
  while (end < run.size() && IsDigit(run[end])) ++end;
  return end;
}

Layout::Layout(std::string_view run) {
  std::size_t at = 0;
  for (; at < run.size() && (run[at] == '+' || run[at] == '-' || run[at] == '0'); ++at) {
    plus = plus || run[at] == '+';
    minus = minus || run[at] == '-';
    zero = zero || run[at] == '0';
  }
  const std::size_t widthEnd = DigitsFrom(run, at);
  width = Places(run.substr(at, widthEnd - at));
  if (widthEnd < run.size() && run[widthEnd] == '.') {
    precision = Places(run.substr(widthEnd + 1, DigitsFrom(run, widthEnd + 1) - widthEnd - 1));
  }
}

template <typename Value>
std::string Layout::Printed(const char* kind, Value value) const {
  const bool isNumber = kind[0] == 'd';
  std::string format = "%";
  if (minus) format += '-';
  if (plus && isNumber) format += '+';
  if (zero && isNumber) format += '0';
  format += std::string("*.*") + kind;
  char printed[2 * kDateTimeSize] = "";
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  std::snprintf(printed, sizeof printed, format.c_str(), width, precision, value);
#pragma GCC diagnostic pop
  return printed;
}

std::string Name(const char* group, int index, const Layout& layout) {
  const RDB_Text name = LookupResource(nullptr, nullptr, (group + std::to_string(index)).c_str());
  return name ? layout.Text(name.get()) : std::string();
}

std::string Century(int year, Layout layout) {
  const int century = year / 100 + (layout.plus ? 1 : 0) - (layout.minus ? 1 : 0);
  layout.plus = layout.minus = false;
  return layout.Number(century);
}

// False for a letter that stands for nothing.
bool Convert(char letter, const DateTime& moment, const Layout& layout, std::string& text) {
  const auto weekDay = [&] { return WeekDay(moment.day, moment.month, moment.year); };
  const auto dayText = [&] {
    const std::string name = Name("Date.MonthDays.", moment.day, layout);
    return name.empty() ? layout.Number(moment.day) : name;
  };
  switch (letter) {
    case 'Y':
      text += layout.Number(moment.year);
      return true;
    case 'y':
      text += layout.Number(moment.year % 100);
      return true;
    case 'c':
      text += Century(moment.year, layout);
      return true;
    case 'o':
      text += layout.Number(moment.month);
      return true;
    case 'O':
      text += Name("Date.Months.Long.", moment.month, layout);
      return true;
    case 'Q':
      text += Name("Date.Months.Short.", moment.month, layout);
      return true;
    case 'n':
      text += layout.Number(moment.day);
      return true;
    case 'N':
      text += dayText();
      return true;
    case 'd':
      text += layout.Number(weekDay());
      return true;
    case 'D':
      text += Name("Date.WeekDays.", weekDay(), layout);
      return true;
    case 'w':
      text += layout.Number(WeekOfYear(moment.day, moment.month, moment.year));
      return true;
    case 'H':
      text += layout.Number(moment.hour);
      return true;
    case 'h':
      text += layout.Number(moment.hour % 12 == 0 ? 12 : moment.hour % 12);
      return true;
    case 'a':
      text += layout.Text(moment.hour < 12 ? "AM" : "PM");
      return true;
    case 'm':
      text += layout.Number(moment.minute);
      return true;
    case 's':
      text += layout.Number(moment.second);
      return true;
    case 'u':
      text += layout.Number(0);
      return true;
    default:
      return false;
  }
}

// Takes what stands behind a "%" off the front of `rest`.
void AppendConversion(std::string_view& rest, const DateTime& moment, std::string& text) {
  const std::size_t runEnd = std::min(rest.find_first_not_of("+-.0123456789"), rest.size());
  if (rest.substr(0, 1) == "%") {
    text += '%';
    rest.remove_prefix(1);
  } else if (runEnd < rest.size() && Convert(rest[runEnd], moment, Layout(rest.substr(0, runEnd)), text)) {
    rest.remove_prefix(runEnd + 1);
  } else {
    text += '%';  // what follows stands for itself
  }
}

}  // namespace

const char* FormatDateTime(const char* format, const DateTime& moment) {
  std::string text;
  for (std::string_view rest(format); !rest.empty();) {
    const char byte = rest.front();
    rest.remove_prefix(1);
    if (byte == '%') {
      AppendConversion(rest, moment, text);
    } else if (byte != '\\') {
      text += byte;
    } else if (!rest.empty()) {
      text += rest.front();
      rest.remove_prefix(1);
    }
  }
  static char result[kDateTimeSize];
  return CopyUTF8(result, text.c_str(), sizeof result);
}
