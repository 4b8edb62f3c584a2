#include "PreferredLanguages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Variable.h"

namespace host {
namespace {

using Tags = std::vector<std::string>;

TEST(PreferredLanguages, LocaleNamesBecomeTags) {
  const std::vector<std::pair<const char*, const char*>> table{
      {"de", "de"},
      {"pt_BR", "pt-BR"},
      {"pt-BR", "pt-BR"},
      {"pt_br.UTF-8", "pt-BR"},
      {"DE_at.ISO8859-15@euro", "de-AT"},
      {"sr_RS@latin", "sr-RS"},
      {"zh_hant_tw", "zh-Hant-TW"},
      {"es_419", "es-419"},
      {"gsw", "gsw"},
      {"pt-BR-x", "pt-BR-x"},
      {"de-CH-1996", "de-CH-1996"},
  };
  for (const auto& [name, tag] : table) EXPECT_EQ(languageTag(name), tag) << name;
}

TEST(PreferredLanguages, WhatNamesNoLanguageGivesNone) {
  for (const char* name : {"",
                           "C",
                           "C.UTF-8",
                           "POSIX",
                           "d",
                           "german",
                           "de-",
                           "de_",
                           "-de",
                           "de--AT",
                           "de_AT_",
                           "d3",
                           "de DE",
                           "../de",
                           "de/AT",
                           "de_muchtoolong",
                           "\xC3\xA4\xC3\xB6",
                           ".UTF-8",
                           "@euro",
                           "1"}) {
    EXPECT_EQ(languageTag(name), std::nullopt) << name;
  }
  EXPECT_EQ(languageTag(std::string_view("de\0", 3)), std::nullopt);
}

TEST(PreferredLanguages, ComeFromTheFirstVariableThatIsSet) {
  struct Row {
    const char* language;
    const char* all;
    const char* messages;
    const char* lang;
    Tags tags;
  };
  const std::vector<Row> table{
      {nullptr, nullptr, nullptr, nullptr, {}},
      {nullptr, nullptr, nullptr, "de_DE.UTF-8", {"de-DE"}},
      {nullptr, nullptr, "fr_FR.UTF-8", "de_DE.UTF-8", {"fr-FR"}},
      {nullptr, "ja_JP.UTF-8", "fr_FR.UTF-8", "de_DE.UTF-8", {"ja-JP"}},
      {"pt_BR:pt:en", "ja_JP.UTF-8", "fr_FR", "de_DE", {"pt-BR", "pt", "en"}},
      {"", "", "", "de_DE.UTF-8", {"de-DE"}},
      {nullptr, "C", nullptr, "de_DE.UTF-8", {}},
      {nullptr, "POSIX", nullptr, nullptr, {}},
      {nullptr, nullptr, nullptr, "C.UTF-8", {}},
      {"de", "C", nullptr, "C", {"de"}},
      {"en_US:en", nullptr, nullptr, nullptr, {"en-US", "en"}},
      {":de::xx-:!:C:fr:", nullptr, nullptr, nullptr, {"de", "fr"}},
      {"de:pt:de", nullptr, nullptr, nullptr, {"de", "pt"}},
      {":::", nullptr, nullptr, "de_DE", {}},
  };
  for (std::size_t i = 0; i < table.size(); ++i) {
    const Row& row = table[i];
    const Variable language("LANGUAGE", row.language);
    const Variable all("LC_ALL", row.all);
    const Variable messages("LC_MESSAGES", row.messages);
    const Variable lang("LANG", row.lang);
    EXPECT_EQ(preferredLanguages(), row.tags) << "row " << i;
  }
}

TEST(PreferredLanguages, AChosenOneGoesBeforeTheEnvironment) {
  const Variable language("LANGUAGE", "fr:de");
  preferLanguage("zh-Hant-TW");
  EXPECT_EQ(preferredLanguages(), Tags{"zh-Hant-TW"});
  EXPECT_STREQ(std::getenv("LANGUAGE"), "zh_Hant_TW");
}

}  // namespace
}  // namespace host
