#include "Preferences.h"
#include "ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

namespace {

namespace fs = std::filesystem;
using host::Preferences;
using testing::HasSubstr;

class PreferencesTest : public testing::Test {
 protected:
  Preferences load() {
    Preferences preferences = Preferences::load(file_, complaint_);
    return preferences;
  }
  void write(const std::string& text) const {
    fs::create_directories(fs::path(file_).parent_path());
    std::ofstream(file_, std::ios::binary) << text;
  }
  static std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::ptrdiff_t filesBeside() const {
    const fs::directory_iterator all(fs::path(file_).parent_path());
    return std::distance(begin(all), end(all));
  }

  const ScratchFolder scratch_;
  const fs::path folder_ = scratch_.path;
  const std::string file_ = (folder_ / "host" / "preferences.json").string();
  std::string complaint_;
};

TEST_F(PreferencesTest, KeepsKindsFromRunToRun) {
  Preferences first = load();
  EXPECT_TRUE(complaint_.empty());
  first.put("Corvane", "Shape", 1);
  first.put("Corvane", "Size", 17.0);
  first.put("Corvane/Line Types", "Standard", std::string("Kiss cut;Crease \xC3\xA4"));
  first.put("", "usePreciseCursors", true);
  first.put("Corvane", "third", 1.0 / 3);
  EXPECT_EQ(first.save(), "");

  const Preferences second = load();
  EXPECT_TRUE(complaint_.empty()) << complaint_;
  EXPECT_EQ(second.integer("Corvane", "Shape"), 1);
  EXPECT_EQ(second.real("Corvane", "Size"), 17.0);
  EXPECT_EQ(second.string("Corvane/Line Types", "Standard"), "Kiss cut;Crease \xC3\xA4");
  EXPECT_EQ(second.boolean("", "usePreciseCursors"), true);
  EXPECT_EQ(second.real("Corvane", "third"), 1.0 / 3);
  EXPECT_EQ(filesBeside(), 1);
}

TEST_F(PreferencesTest, AValueOfAnotherKindIsNoSuchKey) {
  Preferences preferences;
  preferences.put("P", "i", 1);
  preferences.put("P", "r", 1.0);
  preferences.put("P", "b", true);
  preferences.put("P", "s", std::string("1"));
  EXPECT_FALSE(preferences.real("P", "i"));
  EXPECT_FALSE(preferences.boolean("P", "i"));
  EXPECT_FALSE(preferences.integer("P", "r"));
  EXPECT_FALSE(preferences.integer("P", "b"));
  EXPECT_FALSE(preferences.integer("P", "s"));
  EXPECT_FALSE(preferences.string("P", "i"));
  EXPECT_FALSE(preferences.integer("Q", "i"));
  EXPECT_TRUE(preferences.exists("P", "s"));
  EXPECT_FALSE(preferences.exists("P", "other"));
}

TEST_F(PreferencesTest, ChangesOfKindAloneAreStored) {
  Preferences first = load();
  first.put("P", "n", 1);
  EXPECT_EQ(first.save(), "");
  first.put("P", "n", 1.0);
  EXPECT_EQ(first.save(), "");
  EXPECT_EQ(load().real("P", "n"), 1.0);
}

TEST_F(PreferencesTest, RefusesNumbersThatJsonCanNotHold) {
  Preferences preferences;
  preferences.put("P", "r", 2.5);
  EXPECT_FALSE(preferences.put("P", "r", std::numeric_limits<double>::infinity()));
  EXPECT_FALSE(preferences.put("P", "r", std::numeric_limits<double>::quiet_NaN()));
  EXPECT_EQ(preferences.real("P", "r"), 2.5);
}

TEST_F(PreferencesTest, InvalidTextIsMadeValid) {
  Preferences first = load();
  first.put("P", "s", std::string("a\xFF"));
  EXPECT_EQ(first.save(), "");
  EXPECT_EQ(load().string("P", "s"), "a\xEF\xBF\xBD");
}

TEST_F(PreferencesTest, KeepsWhatItDoesNotKnow) {
  write(R"({"P": {"list": [1, 2], "big": 5000000000, "none": null, "n": 4}})");
  Preferences preferences = load();
  EXPECT_TRUE(complaint_.empty()) << complaint_;
  EXPECT_FALSE(preferences.integer("P", "big"));
  EXPECT_EQ(preferences.integer("P", "n"), 4);
  preferences.put("P", "n", 5);
  EXPECT_EQ(preferences.save(), "");
  EXPECT_THAT(contentOf(file_), HasSubstr("\"big\": 5000000000"));
  EXPECT_THAT(contentOf(file_), HasSubstr("\"list\""));
}

TEST_F(PreferencesTest, SetsABrokenFileAsideBeforeItIsOverwritten) {
  const struct {
    std::string text;
    std::string reason;
  } cases[] = {
      {"{\"P\": {\"n\": 1,\n  \"m\": }}", "line 2"}, {"", "line 1"},
      {"[1]", "not an object of objects"},           {"{\"n\": 1}", "not an object of objects"},
      {"{\"P\": {\"n\": 1e999}}", "out of range"},   {"{\"P\": {\"n\": \"\xFF\"}}", "line 1"},
  };
  int aside = 0;
  for (const auto& c : cases) {
    write(c.text);
    Preferences preferences = load();
    EXPECT_THAT(complaint_, HasSubstr(file_));
    EXPECT_THAT(complaint_, HasSubstr(c.reason));
    EXPECT_EQ(contentOf(file_), c.text);  // only looked at so far
    preferences.put("P", "n", 7);
    EXPECT_EQ(preferences.save(), "");
    EXPECT_EQ(load().integer("P", "n"), 7);
    ++aside;
    const std::string name = aside == 1 ? file_ + ".broken" : file_ + ".broken-" + std::to_string(aside);
    EXPECT_EQ(contentOf(name), c.text);
  }
}

TEST_F(PreferencesTest, WritesNothingWithoutAChange) {
  const Preferences untouched = load();
  EXPECT_EQ(load().save(), "");
  EXPECT_FALSE(fs::exists(file_));
}

TEST_F(PreferencesTest, SaysWhyItCanNotStore) {
  std::ofstream(folder_ / "host") << "in the way";
  Preferences preferences = load();
  preferences.put("P", "n", 1);
  const std::string error = preferences.save();
  EXPECT_THAT(error, HasSubstr(file_));
  EXPECT_EQ(contentOf(folder_ / "host"), "in the way");
}

TEST_F(PreferencesTest, OverlaysHideStoredValuesAndAreNotWritten) {
  Preferences first = load();
  first.put("P", "size", 6.0);
  first.put("P", "shape", 0);
  first.overlay("P", "size", 9.0);
  first.overlay("P", "shape", 1);
  first.overlay("P", "extra", true);
  EXPECT_EQ(first.real("P", "size"), 9.0);
  EXPECT_EQ(first.integer("P", "shape"), 1);
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
  EXPECT_EQ(preferences.overlayText("Corvane/Size=17"), "");
  EXPECT_EQ(preferences.real("Corvane", "Size"), 17.0);
  EXPECT_EQ(preferences.integer("Corvane", "Size"), 17);
  EXPECT_EQ(preferences.string("Corvane", "Size"), "17");
  EXPECT_FALSE(preferences.boolean("Corvane", "Size"));

  EXPECT_EQ(preferences.overlayText("Corvane/Line Types/Standard=a=b/c"), "");
  EXPECT_EQ(preferences.string("Corvane/Line Types", "Standard"), "a=b/c");
  EXPECT_FALSE(preferences.real("Corvane/Line Types", "Standard"));

  EXPECT_EQ(preferences.overlayText("usePreciseCursors=true"), "");
  EXPECT_EQ(preferences.boolean("", "usePreciseCursors"), true);
  EXPECT_EQ(preferences.overlayText("Corvane/Empty="), "");
  EXPECT_EQ(preferences.string("Corvane", "Empty"), "");
  EXPECT_FALSE(preferences.integer("Corvane", "Empty"));

  for (const char* wrong : {"", "Corvane/Size", "=5", "Corvane/=5"}) {
    EXPECT_THAT(preferences.overlayText(wrong), HasSubstr("PREFIX/SUFFIX=VALUE")) << wrong;
  }
}

}  // namespace
