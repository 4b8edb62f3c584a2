// The interface in the user's language: menus, alerts, and no text left out.
#include <gmock/gmock.h>

#include "HostProcess.h"

namespace host {
namespace {

using testing::HasSubstr;

struct Speech {
  const char* language;
  const char* menu;   // of the command for marks
  const char* alert;  // a piece of it
};

const Speech kSpeeches[] = {
    {"en", "Add brevia Register Marks...", "not enough space"},
    {"de", "brevia-Registermarken hinzufügen...", "nicht genug Platz"},
    {"fr", "Ajouter des marques de repérage brevia...", "faute d’espace suffisant"},
    {"es", "Añadir marcas de registro brevia...", "no hay espacio suficiente"},
    {"pt_BR", "Adicionar marcas de registro brevia...", "não há espaço suficiente"},
    {"ja", "brevia位置合わせマークを追加...", "十分なスペースがない"},
};

const std::string kPoster = std::string(CORVANE_EXAMPLES) + "/full-bleed-poster.svg";

TEST(Language, IsThatOfTheOptionAndOfTheSystem) {
  const ScratchFolder scratch;
  for (const Speech& speech : kSpeeches) {
    const auto asked =
        runHost({"--language", speech.language, "marks", kPoster, "-o", scratch.file("out.svg")});
    EXPECT_EQ(asked.code, 3) << speech.language;
    EXPECT_THAT(asked.err, HasSubstr(speech.alert)) << speech.language;
    const std::string system = "env -u LANGUAGE LC_ALL= LANG=" + std::string(speech.language) + "_XX.UTF-8";
    const auto found = runHost(
        {"marks", kPoster, "-o", scratch.file("out.svg")}, {},
        std::string(speech.language) == "pt_BR" ? "env -u LANGUAGE LC_ALL= LANG=pt_BR.UTF-8" : system);
    EXPECT_THAT(found.err, HasSubstr(speech.alert)) << speech.language;
  }
}

TEST(Language, LeavesNoTextUntranslated) {
  const ScratchFolder scratch;
  for (const Speech& speech : kSpeeches) {
    const std::string missing = scratch.file(std::string("missing-") + speech.language);
    runHost({"--language", speech.language, "marks", kPoster, "-o", scratch.file("out.svg")}, {},
            "env LOCALE_MISSING=" + quoted(missing));
    EXPECT_FALSE(std::filesystem::exists(missing)) << readText(missing);
  }
}

class LanguageOfMenus : public testing::Test {
 protected:
  ~LanguageOfMenus() override {
    for (const char* name : {"LANGUAGE", "RVLANG", "LOCALE_PATH"}) unsetenv(name);
  }
};

TEST_F(LanguageOfMenus, IsTheUsersAndTheKeysStay) {
  for (const Speech& speech : kSpeeches) {
    setenv("LANGUAGE", speech.language, 1);
    World world;
    ASSERT_EQ(world.complaint, "");
    std::vector<std::string> texts;
    for (const MenuItem& item : world.host.menus().items()) {
      texts.push_back(item.text);
      if (item.key == kMarksKey) {
        EXPECT_EQ(item.text, speech.menu);
      }
    }
    EXPECT_THAT(texts, testing::Contains("Vandrell").Times(3)) << speech.language;
    EXPECT_THAT(texts, testing::Contains("corvane")) << speech.language;
  }
}

TEST_F(LanguageOfMenus, NamesTheUndoStep) {
  setenv("LANGUAGE", "de", 1);
  World world(squareOnPage());
  world.setOptions(0, 1, 10, 0);
  ASSERT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
  EXPECT_EQ(world.drawing.document->undoName(), "brevia-Registermarken hinzufügen");
}

}  // namespace
}  // namespace host
