#include "SourceKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScratchFolder.h"

namespace texts {
namespace {

TEST(SourceKeys, AreTheLiteralsThatAreAskedFor) {
  const ScratchFolder scratch;
  scratch.write("plugin/deep/Menu.cpp",
                "void f() {\n"
                "  Show(Localize(\"One\"), \"not this\", LocalizeItemText(\"Group\", \"Two.\"));\n"
                "  // Localize(\"in a comment\")\n"
                "  ErrorAlert(\"Three \"\n"
                "             \"%s\", \"nor this\");\n"
                "  Vandrell::MessageAlert(\"Four\\n\");\n"
                "}\n");
  scratch.write("plugin/Texts.h", "constexpr const char* kFive = TextKey(\"Fünf\");\n");
  scratch.write("host/Other.cpp", "Localize(\"elsewhere\");\n");
  AskedKeys asked;
  AskForSourceTexts(asked, scratch.path, "plugin");
  std::vector<std::string> found;
  for (const auto& [key, asker] : asked) {
    found.push_back(asker.place + (asker.kind == AskedKey::Kind::Alert ? " alert " : " text ") + key);
  }
  EXPECT_THAT(found, testing::UnorderedElementsAre(
                         "plugin/deep/Menu.cpp:2 text One", "plugin/deep/Menu.cpp:2 text Two\\.",
                         "plugin/deep/Menu.cpp:4 alert Three %s", "plugin/deep/Menu.cpp:6 alert Four\\\n",
                         "plugin/Texts.h:1 text Fünf"));
}

TEST(SourceKeys, TheStricterUseCounts) {
  const ScratchFolder scratch;
  scratch.write("plugin/A.cpp", "ErrorAlert(\"Both\"); Localize(\"Both\");\n");
  AskedKeys asked;
  AskForSourceTexts(asked, scratch.path, "plugin");
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked.begin()->second.kind, AskedKey::Kind::Alert);
}

}  // namespace
}  // namespace texts
