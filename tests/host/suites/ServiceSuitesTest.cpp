// Suites over strings, paths, preferences, tools, notifiers and alerts.

#include "AIPreference.h"
#include "AITool.h"
#include "AIUser.h"
#include "HostFixture.h"

namespace {

class ServiceSuitesTest : public HostFixture {};

TEST_F(ServiceSuitesTest, StringsAreValidUtf8ThatStaysInItsPlace) {
  const AIUnicodeStringHandle string = text(std::string("a\0\xFF\xF0\x9F\x98\x80", 7));
  const char* bytes = nullptr;
  ASSERT_EQ(strings.GetBytes(string, kAIPlatformCharacterEncoding, &bytes, nullptr), kNoErr);
  for (int i = 0; i < 1000; ++i) text("another");
  const std::string kept("a\0\xEF\xBF\xBD\xF0\x9F\x98\x80", 9);
  EXPECT_EQ(std::string(bytes, kept.size()), kept);
  EXPECT_EQ(read(string), kept);
  std::size_t units = 0;
  EXPECT_EQ(strings.GetLength(string, &units), kNoErr);
  EXPECT_EQ(units, 5U);
  AIUnicodeStringHandle none = nullptr;
  EXPECT_EQ(strings.New("a", 1, static_cast<AICharacterEncoding>(2), &none), kBadParameterErr);
  EXPECT_EQ(strings.New(nullptr, 1, kAIUTF8CharacterEncoding, &none), kBadParameterErr);
}

TEST_F(ServiceSuitesTest, PreferenceStringsAreCutBeforeACharacter) {
  const auto& keys = ACQUIRE(AIPreferenceSuite);
  ASSERT_EQ(keys.PutStringPreference("P", "s", "ab\xE5\x88\x87"), kNoErr);
  for (const auto& [size, expected] : {std::pair(1, ""), {5, "ab"}, {6, "ab\xE5\x88\x87"}}) {
    char buffer[] = "######";
    ASSERT_EQ(keys.GetStringPreference("P", "none", buffer, size), kNoErr);
    EXPECT_STREQ(buffer, "######") << "the default";
    ASSERT_EQ(keys.GetStringPreference("P", "s", buffer, size), kNoErr);
    EXPECT_STREQ(buffer, expected) << size;
    EXPECT_EQ(buffer[size], size < 6 ? '#' : 0) << size;
    EXPECT_EQ(keys.GetStringPreference("P", "s", buffer, 0), kBadParameterErr);
  }
}

TEST_F(ServiceSuitesTest, RestoringAToolLeavesItsGroupAsItIs) {
  const auto& suite = ACQUIRE(AIToolSuite);
  host::ToolTable& tools = host.tools();
  const AIToolHandle select = tools.add({}).handle, round = tools.add({}).handle;
  host::ToolRecord member;
  member.group = tools.all().find(round)->group;
  const AIToolHandle cross = tools.add(member).handle;
  std::vector<AIToolHandle> changes;
  tools.onChange = [&](const host::ToolRecord*, const host::ToolRecord* now) {
    changes.push_back(now->handle);
  };
  EXPECT_EQ(suite.SetSelectedTool(cross), kNoErr);
  for (const AIToolHandle tool : {select, round, round}) EXPECT_EQ(suite.RestoreSelectedTool(tool), kNoErr);
  EXPECT_EQ(tools.visibleMember(member.group)->handle, cross);
  EXPECT_EQ(changes, (std::vector<AIToolHandle>{cross, select, round})) << "once for each change";
  EXPECT_EQ(tools.selected()->handle, round);
}

TEST_F(ServiceSuitesTest, AlertsReachTheUser) {
  const auto& user = ACQUIRE(AIUserSuite);
  EXPECT_EQ(user.MessageAlert(text("done")), kNoErr) << "nobody shows it";
  host.showAlert = [](const host::Alert& alert) {
    if (alert.text == "lost") throw std::bad_alloc();
    throw std::runtime_error("no display");
  };
  EXPECT_EQ(user.ErrorAlert(text("no room")), kSPExceptionError);
  EXPECT_EQ(user.MessageAlert(text("lost")), kOutOfMemoryErr);
  EXPECT_EQ(host.alerts()[0].kind, host::AlertKind::Message);
  EXPECT_EQ(host.alerts()[1].kind, host::AlertKind::Error);
}

}  // namespace
