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

TEST(Language, IsThatOfTheOptionOrOfTheSystemAndKnowsEveryText) {
  const ScratchFolder scratch;
  for (const Speech& speech : kSpeeches) {
    SCOPED_TRACE(speech.language);
    const std::string missing = scratch.file(std::string("missing-") + speech.language);
    const auto asked = runHost({"--language", speech.language, "marks", kPoster, "-o", "-"}, {},
                               "env LOCALE_MISSING=" + quoted(missing));
    EXPECT_EQ(asked.code, 3);
    EXPECT_THAT(asked.err, HasSubstr(speech.alert));
    EXPECT_FALSE(std::filesystem::exists(missing)) << readText(missing);
    const std::string country = std::string(speech.language) == "pt_BR" ? "" : "_XX";
    const auto found =
        runHost({"marks", kPoster, "-o", "-"}, {},
                std::string("env -u LANGUAGE LC_ALL= LANG=") + speech.language + country + ".UTF-8");
    EXPECT_THAT(found.err, HasSubstr(speech.alert));
  }
}

TEST(Language, OfMenusAndUndoStepsIsTheUsersAndTheKeysStay) {
  for (const Speech& speech : kSpeeches) {
    setenv("LANGUAGE", speech.language, 1);
    World world(squareOnPage());
    ASSERT_EQ(world.complaint, "");
    std::vector<std::string> texts;
    for (const MenuItem& item : world.host.menus().items()) {
      texts.push_back(item.key == kMarksKey ? "marks: " + item.text : item.text);
    }
    EXPECT_THAT(texts, testing::Contains("Vandrell").Times(3)) << speech.language;
    EXPECT_THAT(texts, testing::IsSupersetOf({std::string("corvane"), std::string("marks: ") + speech.menu}));
    EXPECT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
    EXPECT_EQ(world.drawing.document->undoName() + "...", speech.menu);
  }
  for (const char* name : {"LANGUAGE", "RVLANG", "LOCALE_PATH"}) unsetenv(name);
}

}  // namespace
}  // namespace host
