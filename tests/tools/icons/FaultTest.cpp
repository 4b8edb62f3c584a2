#include <gmock/gmock.h>

#include <algorithm>

#include "RunOn.h"

namespace icons {
namespace {

using testing::HasSubstr;

constexpr char kDot[] =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><path d="M4 4h8v8H4z" fill="currentColor"/></svg>)";

void expectOneSentence(const Outcome& outcome, const std::string& place, const std::string& reason) {
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.errors, HasSubstr(place));
  EXPECT_THAT(outcome.errors, HasSubstr(reason));
  EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
}

struct FaultyList {
  const char* list;
  const char* place;
  const char* reason;
};

TEST(IconListFaults, AreToldWithLineAndReason) {
  const FaultyList cases[] = {
      {"16041 dot.svg 16 themed\n16041 dash.svg 16 plain\n",
       "icons.txt:2: ", "the resource id 16041 is taken by the icon of line 1"},
      {"16041 dot.svg 16 themed\n\n17041 dash.svg 16 plain\n",
       "icons.txt:3: ", "the resource id 17041 is taken"},
      {"16041 dot.svg 16 plain\n20041 dash.svg 16 plain\n",
       "icons.txt:2: ", "the resource id 20041 is taken"},
      {"16041 dot.svg 16 plain\n16042 dot.svg 16 plain\n",
       "icons.txt:2: ", "the file dot.png is taken by the icon of line 1"},
      {"16041 dot.svg 16 themed\n15000 dot-light.svg 16 plain\n",
       "icons.txt:2: ", "the file dot-light.png is taken"},
      {"# heading\n16041 gone.svg 16 themed\n", "icons.txt:2: ", "there is no source"},
      {"16041x dot.svg 16 themed\n", "icons.txt:1: ", "the id \"16041x\" is not a number"},
      {"99999999999 dot.svg 16 plain\n", "icons.txt:1: ", "is not a number from 1 to"},
      {"16041 dot.svg 0 themed\n", "icons.txt:1: ", "the size \"0\" is not a number"},
      {"16041 ../dot.svg 16 themed\n", "icons.txt:1: ", "the source \"../dot.svg\" is not a file name"},
      {"16041 dot.png 16 themed\n", "icons.txt:1: ", "the source \"dot.png\" is not a file name"},
      {"16041 dot.svg 16 dark\n", "icons.txt:1: ", "\"dark\" is neither themed nor plain"},
      {"15999 dot.svg 16 themed\n", "icons.txt:1: ", "cannot be themed"},
      {"16041 dot.svg 16\n", "icons.txt:1: ", "found 3 words"},
  };
  for (const FaultyList& faulty : cases) {
    SCOPED_TRACE(faulty.list);
    const ScratchFolder scratch;
    scratch.write("dot.svg", kDot);
    scratch.write("dash.svg", kDot);
    scratch.write("icons.txt", faulty.list);
    expectOneSentence(runOn(scratch), faulty.place, faulty.reason);
    EXPECT_FALSE(std::filesystem::exists(scratch.path / "out"));
  }
}

TEST(IconSourceFaults, AreToldWithFileAndReason) {
  const std::string head = R"(<svg xmlns="http://www.w3.org/2000/svg" )";
  const std::string body = R"(viewBox="0 0 16 16"><path d="M0 0h16v16z" fill=)";
  const struct {
    std::string svg;
    const char* reason;
  } cases[] = {
      {head + body + "\"#f04848\"/></svg>", "needs currentColor"},
      {head + body + "\"#800000\" stroke=\"currentColor\"/></svg>",
       "#800000 does not stand out from the dark ground"},
      {head + body + "\"#fc0\" stroke=\"currentColor\"/></svg>",
       "#fc0 does not stand out from the light ground"},
      {head + body + "\"#f048\" stroke=\"currentColor\"/></svg>", "#f048 is not one of 3 or 6"},
      {head + "viewBox=\"0 0 20 20\" color=\"currentColor\"/>", "its viewBox is not \"0 0 16 16\""},
      {head + "width=\"16\" height=\"16\" color=\"currentColor\"/>", "its viewBox is not \"0 0 16 16\""},
      {"<svg currentColor", "it cannot be drawn: "},
  };
  for (const auto& faulty : cases) {
    SCOPED_TRACE(faulty.svg);
    const ScratchFolder scratch;
    scratch.write("dot.svg", faulty.svg);
    scratch.write("icons.txt", "16041 dot.svg 16 themed\n");
    expectOneSentence(runOn(scratch), "dot.svg: ", faulty.reason);
  }
}

TEST(IconFileFaults, FoldersThatCannotBeUsedAreNamed) {
  const ScratchFolder scratch;
  expectOneSentence(runOn(scratch), "icons.txt: ", "cannot be read");
  scratch.write("icons.txt", "16041 dot.svg 16 themed\n");
  scratch.write("dot.svg", kDot);
  scratch.write("out", "a file where the folder should be");
  expectOneSentence(runOn(scratch), "dot.png: ", "cannot be written");
}

}  // namespace
}  // namespace icons
