// Which file answers for which text.
#include "Localize.h"
#include "TextBundle.h"

#include "FindTextResource.h"

namespace {

using TextModules = TextBundle;

TEST_F(TextModules, LaterModulesAndLocalisedFilesComeFirst) {
  Write("rv.asc", "everywhere:rv in-product:rv base-german:rv");
  Write("de.lproj/rv.asc", "base-german:rv-de both-german:rv-de");
  Write("corvane.asc", "in-product:corvane product-german:corvane both-german:corvane");
  Write("de.lproj/corvane.asc", "product-german:corvane-de");
  Start("de-AT");
  EXPECT_STREQ(Localize("everywhere"), "rv");
  EXPECT_STREQ(Localize("in-product"), "corvane");
  EXPECT_STREQ(Localize("base-german"), "rv-de");
  EXPECT_STREQ(Localize("product-german"), "corvane-de");
  EXPECT_STREQ(Localize("both-german"), "corvane") << "a later module overrides an earlier one's language";
  EXPECT_STREQ(Localize("nowhere"), "nowhere");
}

TEST_F(TextModules, AreReadOnce) {
  Write("corvane.asc", "word:first");
  Start();
  Write("corvane.asc", "word:second");
  RegisterTextModule("CORVANE");
  SetLanguage("Bundle");
  SetLanguage(nullptr);
  EXPECT_STREQ(Localize("word"), "first");
  SetLanguage("de");
  EXPECT_STREQ(Localize("word"), "second");
}

TEST_F(TextModules, ResourcesAreFoundByTheirOrder) {
  const auto found = [this](const char* language, const char* name) {
    const auto path = FindTextResource(language, name, ".asc");
    return path ? std::filesystem::path(*path).lexically_relative(resources).string() : "";
  };
  setenv("LANGUAGE", "fr", 1);
  EXPECT_FALSE(FindTextResource("de", "name", ".asc")) << "without LOCALE_PATH there is nothing";
  EXPECT_FALSE(FindTextResource(nullptr, "name", ".asc"));
  setenv("LOCALE_PATH", resources.c_str(), 1);
  Write("fr.lproj/name", "");
  EXPECT_EQ(found("de", "name"), "fr.lproj/name") << "without a localisation the bundle chooses";
  Write("de.lproj/name", "");
  EXPECT_EQ(found("de", "name"), "de.lproj/name");
  Write("de.lproj/NAME.ASC", "");
  EXPECT_EQ(found("de", "Name"), "de.lproj/NAME.ASC") << "capitals before small letters";
  Write("de.lproj/Name", "");
  EXPECT_EQ(found("de", "Name"), "de.lproj/Name") << "the name as it is before all others";
  EXPECT_EQ(found("Bundle", "name"), "fr.lproj/name");
  EXPECT_EQ(found("de", "other"), "");

  EXPECT_EQ(found(nullptr, "anything"), "anything.asc");
  EXPECT_EQ(FindTextResource(nullptr, "a", "asc"), resources.string() + "/a.asc");
  EXPECT_FALSE(FindTextResource(nullptr, "a", ""));
  EXPECT_FALSE(FindTextResource(nullptr, "a", nullptr));
  setenv("LOCALE_PATH", (folder / "Demo.bundle").c_str(), 1);
  EXPECT_FALSE(FindTextResource("de", "Name", ".asc")) << "no bundle around this folder";
}

}  // namespace
