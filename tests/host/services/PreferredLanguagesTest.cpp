#include "PreferredLanguages.h"

#include <gtest/gtest.h>

#include <sstream>

#include "Variable.h"

namespace host {
namespace {

using Tags = std::vector<std::string>;

TEST(PreferredLanguages, LocaleNamesBecomeTags) {
  const std::pair<const char*, const char*> table[] = {
      {"pt-BR", "pt-BR"},       {"DE_at.ISO8859-15@euro", "de-AT"},
      {"sr_RS@latin", "sr-RS"}, {"zh_hant_tw", "zh-Hant-TW"},
      {"es_419", "es-419"},     {"de-CH-1996", "de-CH-1996"}};
  for (const auto& [name, tag] : table) EXPECT_EQ(languageTag(name), tag) << name;
}

TEST(PreferredLanguages, WhatNamesNoLanguageGivesNone) {
  EXPECT_EQ(languageTag(std::string_view("de\0", 3)), std::nullopt);
  const std::string names =
      ",C,C.UTF-8,POSIX,d,german,de-,-de,de--AT,d3,de DE,../de,de/AT,de_muchtoolong,\xC3\xA4,@euro";
  std::istringstream list(names);
  for (std::string name; std::getline(list, name, ',');) EXPECT_EQ(languageTag(name), std::nullopt) << name;
}

TEST(PreferredLanguages, ComeFromTheFirstVariableThatIsSet) {
  const struct {
    const char *language, *all, *messages, *lang;
    Tags tags;
  } table[] = {
      {nullptr, nullptr, nullptr, nullptr, {}},
      {"", "", "", "de_DE.UTF-8", {"de-DE"}},
      {nullptr, nullptr, "fr_FR.UTF-8", "de_DE.UTF-8", {"fr-FR"}},
      {nullptr, "ja_JP.UTF-8", "fr_FR.UTF-8", "de_DE.UTF-8", {"ja-JP"}},
      {"pt_BR:pt:en", "ja_JP.UTF-8", "fr_FR", "de_DE", {"pt-BR", "pt", "en"}},
      {nullptr, "C", nullptr, "de_DE.UTF-8", {}},
      {"de", "C", nullptr, "C", {"de"}},
      {":de::xx-:!:C:fr:de:", nullptr, nullptr, nullptr, {"de", "fr"}},
      {":::", nullptr, nullptr, "de_DE", {}},
  };
  for (const auto& row : table) {
    const Variable language("LANGUAGE", row.language), all("LC_ALL", row.all);
    const Variable messages("LC_MESSAGES", row.messages), lang("LANG", row.lang);
    EXPECT_EQ(preferredLanguages(), row.tags) << "row " << &row - table;
  }
}

TEST(PreferredLanguages, AChosenOneGoesBeforeTheEnvironment) {
  const Variable language("LANGUAGE", "fr:de");
  preferLanguage("zh-Hant-TW");
  EXPECT_EQ(preferredLanguages(), Tags{"zh-Hant-TW"});
  EXPECT_STREQ(std::getenv("LANGUAGE"), "zh_Hant_TW");
  preferLanguage("ja");
  preferSystemLanguages();
  EXPECT_EQ(preferredLanguages(), (Tags{"fr", "de"}));
}

}  // namespace
}  // namespace host
