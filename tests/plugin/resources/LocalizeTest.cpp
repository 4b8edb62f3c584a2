// Sentences and their translations.
#include "Localize.h"

#include <cstdarg>

#include "FormatLocalized.h"
#include "LookupResource.h"
#include "ReverseLookup.h"
#include "TextBundle.h"

namespace {

class Sentences : public TextBundle {
 protected:
  void Texts(const std::string& texts) const {
    Write("corvane.asc", texts);
    Start();
  }
};

[[gnu::format(printf, 1, 2)]] const char* Filled(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const char* text = FormatLocalized(format, arguments);
  va_end(arguments);
  return text;
}

TEST_F(Sentences, AreOneComponentEachWhateverTheyHold) {
  Texts(R"(
    "Hello" : "Hallo"
    "File\.txt" : "Datei.txt"
    File.pdf : "Zweig"
    "Two\nlines" : "Zwei\nZeilen"
    "\"Quoted\" \\ \*" : "zitiert"
    * : "wild"
    \* : "Stern"
    "trailing\." : "Punkt"
  )");
  const std::pair<const char*, const char*> table[] = {
      {"Hello", "Hallo"},     {"File.txt", "Datei.txt"},      {"Two\nlines", "Zwei\nZeilen"},
      {"File.pdf", "wild"},   {"\"Quoted\" \\ *", "zitiert"}, {"*", "Stern"},
      {"trailing.", "Punkt"}, {"anything", "wild"},           {"..", "wild"}};
  for (const auto& [sentence, translation] : table) {
    EXPECT_STREQ(Localize(sentence), translation) << sentence;
    EXPECT_STREQ(LocalizeItemText("", sentence), translation) << sentence;
  }
}

TEST_F(Sentences, StandForThemselvesWithoutATranslation) {
  Texts("\"Hello\" : \"Hallo\"");
  EXPECT_EQ(Localize(nullptr), nullptr);
  EXPECT_EQ(LocalizeItemText(nullptr, nullptr), nullptr);
  for (const char* sentence : {"", "Bye", "Hello."}) {
    EXPECT_EQ(Localize(sentence), sentence);
    EXPECT_EQ(LocalizeItemText(nullptr, sentence), sentence);
    EXPECT_EQ(LocalizeItemText("Group", sentence), sentence);
  }
  EXPECT_EQ(LookupResource(nullptr, nullptr, nullptr), nullptr);
}

TEST_F(Sentences, ShareOneBufferAndAreCutToIt) {
  const std::string fits(8191, 'x'), tooLong = std::string(8190, 'x') + "\xC3\xA9";
  Texts("Hello : Hallo  Bye : Servus  fits : " + fits + "  long : " + tooLong);
  const char* first = Localize("Hello");
  EXPECT_EQ(Localize("Bye"), first);
  EXPECT_STREQ(first, "Servus");
  EXPECT_TRUE(Localize("fits") == fits);
  EXPECT_TRUE(Localize("long") == std::string(8190, 'x')) << "half a character is none";
}

TEST_F(Sentences, AreFilledInAsFormats) {
  Texts(R"("%d of %s" : "%d von %s")");
  EXPECT_STREQ(Filled("%d of %s", 3, "9"), "3 von 9");
  EXPECT_STREQ(Filled("%s: %.2f", "x", 0.125), "x: 0.12");
  EXPECT_STREQ(Filled("%s", Localize("%d of %s")), "%d von %s") << "the argument lies in the shared buffer";
  EXPECT_EQ(std::string(Filled("%*d", 10000, 1)).size(), 8191U);
}

TEST_F(Sentences, LeadBackToTheirKeys) {
  Texts("Hello : Hallo  Date.Months.Long.1 : Januar  Menu.Open : \"A.B*\"  \"x\\.y\" : Punkt");
  const std::pair<const char*, const char*> table[] = {
      {"Hallo", "Hello"}, {"Punkt", "x.y"}, {"Januar", nullptr}, {"Hello", nullptr}, {"", nullptr}};
  for (const auto& [text, key] : table) EXPECT_STREQ(ReverseLookup(text), key) << text;
}

class MissingKeys : public Sentences {
 protected:
  MissingKeys() { setenv("LOCALE_MISSING", record.c_str(), 1); }

  std::filesystem::path record = folder / "missing.asc";
};

TEST_F(MissingKeys, AreRecordedOnceAsAFileToTranslate) {
  Texts("Hello : Hallo  Defaults.Fallback : Ersatz");
  const char recorded[] =
      "\n\"Wait\\.\\.\\.\" : \"Wait...\"\n\"Fallback\" : \"Fallback\""
      "\n\"Group.Word\" : \"Word\"\n\"Date.Formats.Short\" : \"Short\"";
  for (const bool anew : {false, true}) {  // those of earlier runs are known
    if (anew) {
      FreeTextState();
      Start();
    }
    for (int i = 0; i < 2; ++i) {
      Localize("Hello");
      Localize("Wait...");
      Localize("Fallback");
      LocalizeItemText("Group", "Word");
      LookupResource(nullptr, nullptr, "Date.Formats.Short");
    }
    EXPECT_EQ(scratch.read("missing.asc"), recorded) << anew;
  }
}

}  // namespace
