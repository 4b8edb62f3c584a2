// Sets of texts with one fault each, and what is said of them.
#include "CheckTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScratchFolder.h"

namespace texts {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char kEnglishDates[] = "Date.Formats.Short : \"%o/%n/%Y\"\n";
constexpr char kGermanDates[] = "Date.Formats.Short : \"%n.%o.%Y\"\n";
constexpr char kEnglishTexts[] =
    "\"corvane \" : \"corvane\"\n"
    "\"Kiss Cut\" : \"Kiss Cut\"\n"
    "\"Crease\" : \"Crease\"\n"
    "\"Open\\.\\.\\.\" : \"Open...\"\n"
    "\"%s has %d lines\\.\" : \"%s has %d lines.\"\n";
constexpr char kGermanTexts[] =
    "\"corvane \" : \"corvane\"\n"
    "\"Kiss Cut\" : \"Anschneiden\"\n"
    "\"Crease\" : \"Rillen\"\n"
    "\"Open\\.\\.\\.\" : \"Öffnen...\"\n"
    "\"%s has %d lines\\.\" : \"%s hat %d Linien.\"\n";

AskedKeys Asked() {
  using Kind = AskedKey::Kind;
  AskedKeys asked;
  AskFor(asked, {Kind::Text, "corvane ", "a.cpp:1"});
  AskFor(asked, {Kind::Text, "Open...", "a.cpp:2"});
  AskFor(asked, {Kind::Alert, "%s has %d lines.", "a.cpp:3"});
  AskFor(asked, {Kind::LineTypeName, "Kiss Cut", "types.json"});
  AskFor(asked, {Kind::LineTypeName, "Crease", "types.json"});
  asked["Date.Formats.Short"] = {Kind::DateFormat, "", "dates"};
  return asked;
}

class SetOfTexts {
 public:
  SetOfTexts() {
    scratch.write("rv.asc", kEnglishDates);
    scratch.write("corvane.asc", kEnglishTexts);
    scratch.write("de.lproj/rv.asc", kGermanDates);
    scratch.write("de.lproj/corvane.asc", kGermanTexts);
  }
  std::vector<std::string> Findings() const { return CheckTexts(scratch.path, Asked()); }

  ScratchFolder scratch;
};

std::string Replaced(std::string text, const std::string& old, const std::string& now) {
  const std::size_t at = text.find(old);
  if (at == std::string::npos) throw std::invalid_argument(old);
  return text.replace(at, old.size(), now);
}

TEST(CheckTexts, FindsNothingInASoundSet) {
  EXPECT_THAT(SetOfTexts().Findings(), IsEmpty());
}

struct Fault {
  const char* name;
  const char* sound;  // of the German texts
  std::string faulty;
  const char* finding;
};

const Fault kFaults[] = {
    {"Missing", "\"Crease\" : \"Rillen\"\n", "",
     "de.lproj/corvane.asc: the text of \"Crease\" is missing; types.json asks for it"},
    {"Extra", "\"Crease\"", "\"Old\" : \"Alt\"\n\"Crease\"",
     "de.lproj/corvane.asc:3: the text of \"Old\" is asked for by nobody"},
    {"Twice", "\"Crease\"", "\"Kiss Cut\" : \"Kuss\"\n\"Crease\"",
     "de.lproj/corvane.asc:3: the text of \"Kiss Cut\" stands in de.lproj/corvane.asc:2 as well"},
    {"InBothModules", "\"Crease\"", "Date.Formats.Short : \"%Y\"\n\"Crease\"",
     "de.lproj/corvane.asc:3: the text of \"Date.Formats.Short\" stands in de.lproj/rv.asc:1 as well"},
    {"Empty", "Anschneiden", "", "corvane.asc:2: the text of \"Kiss Cut\" is empty"},
    {"Untranslated", "Rillen", "Crease", "\"Crease\" is not translated"},
    {"SwappedPlaceholders", "%s hat %d", "%d hat %s",
     "de.lproj/corvane.asc:5: the text of \"%s has %d lines\\.\" has other placeholders than its key"},
    {"PlaceholderOfAnotherSize", "hat %d", "hat %ld", "has other placeholders than its key"},
    {"BarePercent", "Rillen", "100 % Rillen", "has other placeholders than its key"},
    {"NoEllipsis", "Öffnen...", "Öffnen", "\"Open\\.\\.\\.\" does not end as its key does"},
    {"FullStop", "Rillen", "Rillen.", "\"Crease\" does not end as its key does"},
    {"Blanks", "\"Rillen\"", "\"Rillen \"", "\"Crease\" has blanks at its ends"},
    {"LongName", "Rillen", std::string(32, 'x'), "is longer than 31 characters"},
    {"NameWithSeparator", "Rillen", "Rillen|Falten", "\"Crease\" has a \"|\" in it"},
    {"NameOfAnother", "Rillen", "Anschneiden", "\"Crease\" is that of \"Kiss Cut\" too"},
    {"LongAlert", "Linien", std::string(501, 'x'), "is longer than 511 bytes"},
    {"LongText", "Öffnen", std::string(8189, 'x'), "is longer than 8191 bytes"},
    {"LongKey", "\"Crease\"", '"' + std::string(1024, 'k') + "\" : \"x\"\n\"Crease\"", "has too long a key"},
    {"NoUTF8", "Öffnen",
     "\xD6"
     "ffnen",
     "\"Open\\.\\.\\.\" is no UTF-8"},
    {"HalfACharacter", "Rillen", "Rillen\\303", "\"Crease\" is no UTF-8"},
    {"Wildcard", "\"Crease\"", "\"Cr*\".\"*\"", "the text of \"Cr\\*.*\" is asked for by nobody"},
    {"NoSeparator", "\"Crease\" :", "\"Crease\"", "de.lproj/corvane.asc: has a syntax error"},
    {"OpenQuote", "Rillen\"", "Rillen", "de.lproj/corvane.asc: has a syntax error"},
    {"OpenQuoteAtTheEnd", "Linien.\"", "Linien.", "has blanks at its ends"},
    {"KeyWithoutText", "Linien.\"\n", "Linien.\"\nKey", "de.lproj/corvane.asc: has a syntax error"},
};

TEST(CheckTexts, FindsEachFault) {
  for (const Fault& fault : kFaults) {
    const SetOfTexts texts;
    texts.scratch.write("de.lproj/corvane.asc", Replaced(kGermanTexts, fault.sound, fault.faulty));
    EXPECT_THAT(texts.Findings(), Contains(HasSubstr(fault.finding))) << fault.name;
  }
}

TEST(CheckTexts, FindsNothingAtTheLimits) {
  std::string german = Replaced(kGermanTexts, "Linien", std::string(500, 'x'));
  german = Replaced(german, "Öffnen", std::string(8188, 'x'));
  german = Replaced(german, "Rillen", "äöü" + std::string(28, 'x'));
  const SetOfTexts texts;
  texts.scratch.write("de.lproj/corvane.asc", german);
  EXPECT_THAT(texts.Findings(), IsEmpty());
}

TEST(CheckTexts, FindsEnglishThatIsNotItsKey) {
  const SetOfTexts texts;
  texts.scratch.write("corvane.asc", Replaced(kEnglishTexts, ": \"Crease\"", ": \"Fold\""));
  EXPECT_THAT(texts.Findings(),
              ElementsAre("corvane.asc:3: the text of \"Crease\" is not the text of its key"));
}

TEST(CheckTexts, FindsAFormatThatMeansNothing) {
  const SetOfTexts texts;
  texts.scratch.write("de.lproj/rv.asc", "Date.Formats.Short : \"%T.%M.%J\"\n");
  EXPECT_THAT(
      texts.Findings(),
      ElementsAre("de.lproj/rv.asc:1: the text of \"Date.Formats.Short\" is no format of a date or time"));
}

TEST(CheckTexts, FindsAMissingFile) {
  const SetOfTexts texts;
  std::filesystem::remove(texts.scratch.path / "de.lproj/rv.asc");
  EXPECT_THAT(
      texts.Findings(),
      ElementsAre("de.lproj/rv.asc: cannot be read",
                  "de.lproj/rv.asc: the text of \"Date.Formats.Short\" is missing; dates asks for it"));
}

TEST(CheckTexts, AnAlertMustBeAFormat) {
  AskedKeys asked;
  AskFor(asked, {AskedKey::Kind::Alert, "100 %", "a.cpp:1"});
  const ScratchFolder scratch;
  scratch.write("rv.asc", "");
  scratch.write("corvane.asc", "\"100 %\" : \"100 %\"");
  EXPECT_THAT(CheckTexts(scratch.path, asked),
              ElementsAre("corvane.asc:1: the text of \"100 %\" has a key that is no printf format"));
}

}  // namespace
}  // namespace texts
