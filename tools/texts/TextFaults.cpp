#include "TextFaults.h"

#include <algorithm>
#include <optional>

#include "DateKeys.h"
#include "LineTypeNames.h"
#include "PrintfConversions.h"
#include "UTF8.h"

namespace texts {
namespace {

using Faults = std::vector<std::string>;

constexpr std::string_view kBlanks = " \t\r\n";

// Texts that are the same in English and in another language.
struct SharedText {
  std::string_view language;  // empty: all of them
  std::string_view text;
};
constexpr SharedText kSharedTexts[] = {{"", "Vandrell"}, {"", "corvane"},  {"", "OK"},
                                       {"de", "Name:"},  {"de", "Normal"}, {"es", "Color:"}};

bool IsShared(std::string_view language, std::string_view text) {
  return std::any_of(std::begin(kSharedTexts), std::end(kSharedTexts), [=](const SharedText& shared) {
    return shared.text == text && (shared.language.empty() || shared.language == language);
  });
}

// Ends that a text and its key have in common, with their full-width forms. Longer ones first.
struct Ending {
  std::string_view latin;
  std::string_view fullWidth;
};
constexpr Ending kEndings[] = {{"...", "..."}, {":", "："}, {".", "。"}, {"?", "？"}, {"!", "！"}};

bool EndsIn(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

const Ending* EndingOf(std::string_view text) {
  const auto* const ending =
      std::find_if(std::begin(kEndings), std::end(kEndings), [=](const Ending& candidate) {
        return EndsIn(text, candidate.latin) || EndsIn(text, candidate.fullWidth);
      });
  return ending == std::end(kEndings) ? nullptr : ending;
}

std::string_view WithoutBlanksAtEnd(std::string_view text) {
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

void FindSizeFaults(const AskedKey& asked, const std::string& text, Faults& faults) {
  const bool isAlert = asked.kind == AskedKey::Kind::Alert;
  const std::size_t most = (isAlert ? kAlertSize : kTextSize) - 1;
  if (text.size() > most) {
    faults.push_back("is longer than " + std::to_string(most) + " bytes");
  }
  const std::optional<std::size_t> length = UTF16Length(text);
  if (!length) {
    faults.emplace_back("is no UTF-8");
  } else if (asked.kind == AskedKey::Kind::LineTypeName && *length > kLineTypeNameLength) {
    faults.push_back("is longer than " + std::to_string(kLineTypeNameLength) + " characters");
  }
}

void FindPlaceholderFaults(const AskedKey& asked, const std::string& text, Faults& faults) {
  const auto expected = PrintfConversions(asked.english);
  if (!expected) {
    if (asked.kind == AskedKey::Kind::Alert) faults.emplace_back("has a key that is no printf format");
    return;  // no format then: its "%" are for themselves
  }
  if (PrintfConversions(text) != expected) faults.emplace_back("has other placeholders than its key");
}

void FindFormFaults(const AskedKey& asked, const std::string& language, const std::string& text,
                    Faults& faults) {
  const std::string_view key = WithoutBlanksAtEnd(asked.english);
  if (language == kEnglish) {
    if (text != key) faults.emplace_back("is not the text of its key");
    return;
  }
  if (text == key && !IsShared(language, text)) faults.emplace_back("is not translated");
  if (EndingOf(text) != EndingOf(key)) faults.emplace_back("does not end as its key does");
}

}  // namespace

Faults TextFaults(const AskedKey& asked, const std::string& language, const std::string& text) {
  Faults faults;
  if (text.empty()) return {"is empty"};
  FindSizeFaults(asked, text, faults);
  if (text.find_first_not_of(kBlanks) != 0 || WithoutBlanksAtEnd(text) != text) {
    faults.emplace_back("has blanks at its ends");
  }
  if (asked.kind == AskedKey::Kind::DateFormat && !IsDateFormat(text)) {
    faults.emplace_back("is no format of a date or time");
  }
  if (asked.kind == AskedKey::Kind::LineTypeName && text.find(kNameSeparator) != std::string::npos) {
    faults.push_back(std::string("has a \"") + kNameSeparator + "\" in it");
  }
  if (!asked.english.empty()) {
    FindPlaceholderFaults(asked, text, faults);
    FindFormFaults(asked, language, text, faults);
  }
  return faults;
}

}  // namespace texts
