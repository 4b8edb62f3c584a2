#include "Preferences.h"
#include "ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
  EXPECT_EQ(std::distance(fs::directory_iterator(scratch_.path / "host"), fs::directory_iterator()), 1);
}

TEST_F(PreferencesTest, KeepsWhatItDoesNotKnow) {
  scratch_.write(name_, R"({"P": {"list": [1, 2], "big": 5000000000, "none": null, "n": 4}})");
  Preferences preferences = load();
  EXPECT_FALSE(preferences.integer("P", "big"));
  preferences.put("P", "n", 5);
  EXPECT_EQ(preferences.save(), "");
  EXPECT_THAT(scratch_.read(name_), testing::AllOf(HasSubstr("\"big\": 5000000000"), HasSubstr("\"list\"")));
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

TEST_F(PreferencesTest, SaysWhyItCanNotStore) {
  scratch_.write("host", "in the way");
  Preferences preferences = load();
  preferences.put("P", "n", 1);
  EXPECT_THAT(preferences.save(), HasSubstr(file_));
  EXPECT_EQ(scratch_.read("host"), "in the way");
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
