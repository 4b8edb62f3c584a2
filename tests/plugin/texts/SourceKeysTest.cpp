#include "SourceKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScratchFolder.h"

namespace texts {
namespace {

TEST(SourceKeys, AreTheLiteralsThatAreAskedForInTheStrictestWay) {
  const ScratchFolder scratch;
  scratch.write("plugin/deep/Menu.cpp",
                "  Show(Localize(\"One\"), \"not this\", LocalizeItemText(\"Group\", \"Two.\"));\n"
                "  // Localize(\"in a comment\")\n"
                "  ErrorAlert(\"Three \"\n"
                "             \"%s\", \"nor this\");\n"
                "  Vandrell::MessageAlert(\"Four\\n\"); Localize(\"Four\\n\");\n");
  scratch.write("plugin/Texts.h", "constexpr const char* kFive = TextKey(\"Fünf\");\n");
  scratch.write("host/Other.cpp", "Localize(\"elsewhere\");\n");
  AskedKeys asked;
  AskForSourceTexts(asked, scratch.path, "plugin");
  std::vector<std::string> found;
  for (const auto& [key, asker] : asked) {
    found.push_back(asker.place + (asker.kind == AskedKey::Kind::Alert ? " alert " : " text ") + key);
  }
  EXPECT_THAT(found, testing::UnorderedElementsAre(
                         "plugin/deep/Menu.cpp:1 text One", "plugin/deep/Menu.cpp:1 text Two\\.",
                         "plugin/deep/Menu.cpp:3 alert Three %s", "plugin/deep/Menu.cpp:5 alert Four\\\n",
                         "plugin/Texts.h:1 text Fünf"));
}

}  // namespace
}  // namespace texts
