#include "FileLock.h"
#include "Preferences.h"
#include "ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <limits>

namespace {

namespace fs = std::filesystem;
using host::Preferences;
using testing::HasSubstr;

class PreferencesTest : public testing::Test {
 protected:
  Preferences load() { return Preferences::load(file_, complaint_); }

  const ScratchFolder scratch_;
  const std::string name_ = "host/preferences.json";
  const std::string file_ = scratch_.file(name_);
  std::string complaint_;
};

TEST_F(PreferencesTest, KeepsKindsFromRunToRun) {
  Preferences first = load();
  EXPECT_EQ(first.save(), "");
  EXPECT_FALSE(fs::exists(file_)) << "without a change nothing is written";
  first.put("Corvane", "Size", 17);
  EXPECT_EQ(first.save(), "");
  first.put("Corvane", "Size", 17.0);  // another kind alone is a change
  first.put("Corvane/Line Types", "Standard", std::string("Kiss cut;\xC3\xA4\xFF"));
  first.put("", "usePreciseCursors", true);
  first.put("Corvane", "third", 1.0 / 3);
  EXPECT_FALSE(first.put("Corvane", "r", std::numeric_limits<double>::infinity())) << "no number for JSON";
  EXPECT_EQ(first.save(), "");

  const Preferences second = load();
  EXPECT_TRUE(complaint_.empty()) << complaint_;
  EXPECT_EQ(second.real("Corvane", "Size"), 17.0);
  EXPECT_EQ(second.string("Corvane/Line Types", "Standard"), "Kiss cut;\xC3\xA4\xEF\xBF\xBD");
  EXPECT_EQ(second.boolean("", "usePreciseCursors"), true);
  EXPECT_EQ(second.real("Corvane", "third"), 1.0 / 3);
  EXPECT_FALSE(second.integer("Corvane", "Size")) << "a value of another kind is no such key";
  EXPECT_FALSE(second.boolean("Corvane", "third"));
  EXPECT_TRUE(second.exists("Corvane", "Size") && !second.exists("Corvane", "r"));
  EXPECT_EQ(std::distance(fs::directory_iterator(scratch_.path / "host"), fs::directory_iterator()), 2)
      << "the file and its lock";
}

TEST_F(PreferencesTest, SetsABrokenFileAsideBeforeItIsOverwritten) {
  const std::pair<std::string, std::string> cases[] = {
      {"{\"P\": {\"n\": 1,\n  \"m\": }}", "line 2"}, {"[1]", "not an object of objects"},
      {"{\"n\": 1}", "not an object of objects"},    {"{\"P\": {\"n\": 1e999}}", "out of range"},
      {"{\"P\": {\"n\": \"\xFF\"}}", "line 1"},
  };
  int count = 0;
  for (const auto& [text, reason] : cases) {
    scratch_.write(name_, text);
    Preferences preferences = load();
    EXPECT_THAT(complaint_, testing::AllOf(HasSubstr(file_), HasSubstr(reason)));
    EXPECT_EQ(scratch_.read(name_), text) << "only looked at so far";
    preferences.put("P", "n", 7);
    EXPECT_EQ(preferences.save(), "");
    EXPECT_EQ(load().integer("P", "n"), 7);
    const std::string aside = ++count == 1 ? ".broken" : ".broken-" + std::to_string(count);
    EXPECT_EQ(scratch_.read(name_ + aside), text);
  }
}

TEST_F(PreferencesTest, ProgramsThatShareAFileKeepEachOthersValues) {
  scratch_.write(name_, R"({"P": {"ours": 1, "theirs": 1, "both": 1, "gone": 1}, "Gone": {"n": 1}})");
  Preferences ours = load(), theirs = load();
  ours.put("P", "ours", 2);
  ours.put("P", "both", 2);
  theirs.put("P", "both", 3);
  theirs.put("P", "theirs", 3);
  theirs.put("New", "n", 3);
  for (Preferences* one : {&theirs, &ours}) EXPECT_EQ(one->save(), "");
  const Preferences merged = load();
  EXPECT_EQ(merged.integer("P", "ours"), 2);
  EXPECT_EQ(merged.integer("P", "both"), 2) << "the last one to store it";
  EXPECT_EQ(merged.integer("P", "theirs"), 3);
  EXPECT_TRUE(merged.exists("New", "n") && merged.exists("Gone", "n"));
  EXPECT_EQ(ours.integer("P", "theirs"), 1) << "nothing changes under a plug-in's hands";

  // Somebody has taken values out, and put in what this version does not know.
  scratch_.write(name_, R"({"P": {"theirs": 4, "both": 4, "list": [1, 2], "big": 5000000000}})");
  ours.put("P", "both", 5);
  ours.catchUp("P");
  ours.catchUp("Gone");
  EXPECT_EQ(ours.integer("P", "theirs"), 4);
  EXPECT_EQ(ours.integer("P", "both"), 5) << "put, and not stored yet";
  EXPECT_FALSE(ours.exists("P", "gone") || ours.exists("Gone", "n") || ours.integer("P", "big"));
  theirs.put("P", "ours", 6);
  for (Preferences* one : {&ours, &theirs}) EXPECT_EQ(one->save(), "");
  std::string stored = scratch_.read(name_);
  stored.erase(std::remove_if(stored.begin(), stored.end(), [](char c) { return c == ' ' || c == '\n'; }),
               stored.end());
  EXPECT_EQ(stored, R"({"P":{"big":5000000000,"both":5,"list":[1,2],"ours":6,"theirs":4}})");
}

TEST_F(PreferencesTest, SaysWhyItCanNotStore) {
  scratch_.write("host", "in the way");
  Preferences preferences = load();
  preferences.put("P", "n", 1);
  EXPECT_THAT(preferences.save(), HasSubstr(file_));
  EXPECT_EQ(scratch_.read("host"), "in the way");

  fs::remove(scratch_.file("host"));
  scratch_.write(name_, "{}");
  auto lock = host::FileLock::attempt(file_ + ".lock");
  EXPECT_THAT(preferences.save(), HasSubstr("another program keeps them locked"));
  EXPECT_EQ(scratch_.read(name_), "{}");
  lock.reset();
  EXPECT_EQ(preferences.save(), "");
  EXPECT_EQ(load().integer("P", "n"), 1) << "kept for the next save";
}

TEST_F(PreferencesTest, OverlaysHideStoredValuesAndAreNotWritten) {
  Preferences first = load();
  first.put("P", "size", 6.0);
  first.overlay("P", "size", 9.0);
  first.overlay("P", "shape", 1);
  first.overlay("P", "extra", true);
  EXPECT_EQ(first.real("P", "size"), 9.0);
  EXPECT_TRUE(first.exists("P", "extra"));
  first.put("P", "shape", 2);  // ends its overlay
  EXPECT_EQ(first.integer("P", "shape"), 2);
  EXPECT_EQ(first.save(), "");
  const Preferences second = load();
  EXPECT_EQ(second.real("P", "size"), 6.0);
  EXPECT_EQ(second.integer("P", "shape"), 2);
  EXPECT_FALSE(second.exists("P", "extra"));
}

TEST_F(PreferencesTest, OverlayTextTakesTheKindThatIsAskedFor) {
  Preferences preferences;
  for (const char* text :
       {"Corvane/Size=17", "Corvane/Line Types/Standard=a=b/c", "usePreciseCursors=true"}) {
    EXPECT_EQ(preferences.overlayText(text), "");
  }
  EXPECT_EQ(preferences.real("Corvane", "Size"), 17.0);
  EXPECT_EQ(preferences.string("Corvane", "Size"), "17");
  EXPECT_FALSE(preferences.boolean("Corvane", "Size"));
  EXPECT_EQ(preferences.string("Corvane/Line Types", "Standard"), "a=b/c");
  EXPECT_EQ(preferences.boolean("", "usePreciseCursors"), true);
  for (const char* wrong : {"", "Corvane/Size", "=5", "Corvane/=5"}) {
    EXPECT_THAT(preferences.overlayText(wrong), HasSubstr("PREFIX/SUFFIX=VALUE")) << wrong;
  }
}

}  // namespace
