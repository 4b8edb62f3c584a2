// Text for the user and the place of the plug-in's files.
#include <gmock/gmock.h>

#include <tuple>

#include "AIError.h"
#include "Alerts.h"
#include "CopyUTF8.h"
#include "FilePathText.h"
#include "FramePlugin.h"
#include "ResourceLocation.h"

namespace {

TEST(CopyUTF8, CutsBeforeWhatIsNoWholeCharacter) {
  const std::tuple<const char*, std::size_t, const char*> table[] = {
      {"abc", 4, "abc"},
      {"abc", 3, "ab"},
      {"a\xC3\xA9", 4, "a\xC3\xA9"},
      {"a\xC3\xA9", 3, "a"},
      {"\xF0\x9F\x98\x80", 8, "\xF0\x9F\x98\x80"},
      {"\xF0\x9F\x98\x80", 4, ""},
      {"a\xA9z", 8, "a"},
      {"a\xC3z", 8, "a"},
      {"a", 0, "x"},
  };
  for (const auto& [source, size, copied] : table) {
    char target[8] = "x";
    EXPECT_EQ(CopyUTF8(target, source, size), target);
    EXPECT_STREQ(target, copied) << source << " into " << size;
  }
}

using Resources = FrameTest;

TEST_F(Resources, AlertsShowSentencesAndFilledFormats) {
  ErrorAlert("Not a format.");
  MessageAlert("%d of %s", 3, "them");
  MessageAlert("%s", std::string(600, 'x').c_str());
  MessageAlert("%s\xC3\xA9", std::string(510, 'x').c_str());
  ASSERT_EQ(host.alerts().size(), 4U);
  EXPECT_EQ(host.alerts()[0].kind, host::AlertKind::Error);
  EXPECT_EQ(host.alerts()[0].text, "Not a format.");
  EXPECT_EQ(host.alerts()[1].kind, host::AlertKind::Message);
  EXPECT_EQ(host.alerts()[1].text, "3 of them");
  EXPECT_EQ(host.alerts()[2].text, std::string(511, 'x'));
  EXPECT_EQ(host.alerts()[3].text, std::string(510, 'x')) << "half a character is none";
}

TEST_F(Resources, LieAtAPathInNormalFormThatMustFit) {
  const std::string longest = "/" + std::string(254, 'b'), shipped = "/Contents/Resources";
  const std::string growing = "\xEF\xAC\x9D";  // becomes two characters of four bytes
  const std::tuple<std::string, AIErr, std::string> table[] = {
      {longest, kNoErr, longest + shipped},
      {longest + "b", ErrorCode("SMAL"), "untouched"},
      {"/cafe\xCC\x81/", kNoErr, "/caf\xC3\xA9" + shipped},
      {"/" + growing + std::string(251, 'b'), ErrorCode("fGCS"), "untouched"}};
  for (const auto& [bundle, error, expected] : table) {
    char path[kResourcePathSize] = "untouched";
    EXPECT_EQ(LocateResources(host.addPlugin("p", bundle).handle, path), error) << bundle;
    EXPECT_EQ(path, expected);
  }
}

}  // namespace
