#include "CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace host {
namespace {

using testing::HasSubstr;

std::variant<CommandLine, ExitCode> parse(std::vector<std::string> words) {
  words.insert(words.begin(), "corvane-host");
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  return parseCommandLine(static_cast<int>(argv.size()), argv.data());
}

TEST(CommandLine, MisuseIsOneSentence) {
  struct Row {
    std::vector<std::string> words;
    const char* sentence;
  };
  const std::vector<Row> table{
      {{"frobnicate"}, "\"frobnicate\" is neither a command nor a drawing"},
      {{"a.svg", "mark"}, "\"mark\" is neither a command nor a drawing"},
      {{"--language", "C", "a.svg"}, "\"C\" is no language"},
      {{"marks", "a.svg", "-o", "b.svg", "--language", "de-"}, "\"de-\" is no language"},
      {{"--language", "../de"}, "\"../de\" is no language"},
      {{"--theme", "blue"}, "blue"},
      {{"info", "a.svg", "b.svg"}, "info takes no further file b.svg"},
      {{"export", "a.svg", "b.svg", "-o", "c.png"}, "export takes no further file b.svg"},
      {{"a.svg", "info", "b.svg"}, "info takes no further file a.svg"},
      {{"info", "a.svg", "--screenshot", "w.png"}, "--screenshot is for the window, not for info"},
      {{"--screenshot"}, "--screenshot"},
  };
  for (const Row& row : table) {
    testing::internal::CaptureStderr();
    const auto parsed = parse(row.words);
    const std::string said = testing::internal::GetCapturedStderr();
    ASSERT_TRUE(std::holds_alternative<ExitCode>(parsed)) << row.sentence;
    EXPECT_EQ(std::get<ExitCode>(parsed), kExitUsage) << row.sentence;
    EXPECT_THAT(said, testing::StartsWith("corvane-host: "));
    EXPECT_THAT(said, HasSubstr(row.sentence));
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
  }
}

}  // namespace
}  // namespace host
