// Sets of texts with one fault each, and what is said of them.
#include "CheckTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScratchFolder.h"

namespace texts {
namespace {

using testing::Contains;
using testing::ElementsAre;

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

struct SetOfTexts {
  SetOfTexts() {
    scratch.write("rv.asc", "Date.Formats.Short : \"%o/%n/%Y\"\n");
    scratch.write("corvane.asc", kEnglishTexts);
    scratch.write("de.lproj/rv.asc", "Date.Formats.Short : \"%n.%o.%Y\"\n");
    scratch.write("de.lproj/corvane.asc", kGermanTexts);
  }
  std::vector<std::string> Findings() const { return CheckTexts(scratch.path, Asked()); }

  ScratchFolder scratch;
};

// Throws where there is no `old`.
std::string Replaced(std::string text, const std::string& old, const std::string& now) {
  return text.replace(text.find(old), old.size(), now);
}

struct Fault {
  const char* sound;  // of the German texts
  std::string faulty;
  const char* finding;  // behind the name of their file
};

const Fault kFaults[] = {
    {"\"Crease\" : \"Rillen\"\n", "", ": the text of \"Crease\" is missing; types.json asks for it"},
    {"\"Crease\"", "\"Old\" : \"Alt\"\n\"Crease\"", ":3: the text of \"Old\" is asked for by nobody"},
    {"Kiss Cut", "Crease", ":3: the text of \"Crease\" stands in de.lproj/corvane.asc:2 as well"},
    {"Anschneiden", "", ":2: the text of \"Kiss Cut\" is empty"},
    {"Rillen", "Crease", ":3: the text of \"Crease\" is not translated"},
    {"%s hat %d", "%d hat %s", ":5: the text of \"%s has %d lines\\.\" has other placeholders than its key"},
    {"Rillen", "100 % Rillen", ":3: the text of \"Crease\" has other placeholders than its key"},
    {"Rillen", "Rillen.", ":3: the text of \"Crease\" does not end as its key does"},
    {"Rillen\"", "Rillen \"", ":3: the text of \"Crease\" has blanks at its ends"},
    {"Rillen", std::string(32, 'x'), ":3: the text of \"Crease\" is longer than 31 characters"},
    {"Rillen", "Rillen|Falten", ":3: the text of \"Crease\" has a \"|\" in it"},
    {"Rillen", "Anschneiden", ":3: the text of \"Crease\" is that of \"Kiss Cut\" too"},
    {"Rillen", "Rillen\\303", ":3: the text of \"Crease\" is no UTF-8"},
    {"Linien", std::string(501, 'x'), ":5: the text of \"%s has %d lines\\.\" is longer than 511 bytes"},
    {"Öffnen", std::string(8189, 'x'), ":4: the text of \"Open\\.\\.\\.\" is longer than 8191 bytes"},
    {"\"Crease\"", "\"Cr*\".\"*\"", ":3: the text of \"Cr\\*.*\" is asked for by nobody"},
    {"Linien.\"\n", "Linien.\"\nKey", ": has a syntax error"},
};

TEST(CheckTexts, FindsEachFault) {
  for (const Fault& fault : kFaults) {
    const SetOfTexts texts;
    texts.scratch.write("de.lproj/corvane.asc", Replaced(kGermanTexts, fault.sound, fault.faulty));
    EXPECT_THAT(texts.Findings(), Contains(std::string("de.lproj/corvane.asc") + fault.finding))
        << fault.faulty;
  }
}

TEST(CheckTexts, FindsFaultsOfOtherFiles) {
  const SetOfTexts texts;
  texts.scratch.write("corvane.asc", Replaced(kEnglishTexts, ": \"Crease\"", ": \"Fold\""));
  texts.scratch.write("de.lproj/rv.asc", "Date.Formats.Short : \"%T.%M.%J\"\n");
  texts.scratch.write("fr.lproj/corvane.asc", Replaced(kGermanTexts, "%d Linien", "%d lignes"));
  EXPECT_THAT(
      texts.Findings(),
      ElementsAre("corvane.asc:3: the text of \"Crease\" is not the text of its key",
                  "de.lproj/rv.asc:1: the text of \"Date.Formats.Short\" is no format of a date or time",
                  "fr.lproj/rv.asc: cannot be read",
                  "fr.lproj/rv.asc: the text of \"Date.Formats.Short\" is missing; dates asks for it"));
}

}  // namespace
}  // namespace texts
