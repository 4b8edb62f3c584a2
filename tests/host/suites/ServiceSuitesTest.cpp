// Suites over strings, paths, preferences, tools, notifiers and alerts.

#include <cmath>
#include <cstring>

#include "AIFilePath.h"
#include "AIPreference.h"
#include "AIRealMath.h"
#include "AITool.h"
#include "AIUser.h"
#include "HostFixture.h"
#include "SPPlugins.h"

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

TEST_F(ServiceSuitesTest, APluginFindsItsBundle) {
  const auto& plugins = acquire<SPPluginsSuite>(kSPPluginsSuite, kSPPluginsSuiteVersion);
  const auto& files = acquire<AIFilePathSuite>(kAIFilePathSuite, kAIFilePathSuiteVersion);
  const SPPluginRef second = host.addPlugin("second", "/opt/plug-ins/gr\xC3\xBCn.bundle").handle;
  SPFileRef file = nullptr;
  AIFilePathHandle path = nullptr;
  ASSERT_EQ(plugins.GetPluginFileSpecification(second, &file), kNoErr);
  ASSERT_EQ(files.New(&path), kNoErr);
  ASSERT_EQ(files.SetFromFileReference(path, file), kNoErr);
  const AIUnicodeStringHandle full = text("x");
  EXPECT_EQ(files.GetFullPath(path, full), kNoErr);
  EXPECT_EQ(read(full), "/opt/plug-ins/gr\xC3\xBCn.bundle");
  EXPECT_EQ(files.SetFromFileReference(path, reinterpret_cast<SPFileRef>(second)), kBadParameterErr);
}

TEST_F(ServiceSuitesTest, PreferencesLeaveDefaultsAlone) {
  const auto& keys = acquire<AIPreferenceSuite>(kAIPreferenceSuite, kAIPreferenceSuiteVersion);
  AIReal size = 17;
  EXPECT_EQ(keys.GetRealPreference("Corvane", "Size", &size), kNoErr);
  EXPECT_EQ(size, 17);
  EXPECT_EQ(keys.PutRealPreference("Corvane", "Size", 6.5), kNoErr);
  EXPECT_EQ(keys.GetRealPreference("Corvane", "Size", &size), kNoErr);
  EXPECT_EQ(size, 6.5);
  EXPECT_EQ(keys.PutRealPreference("Corvane", "Size", std::nan("")), kBadParameterErr);
  AIBoolean flag = 1;
  EXPECT_EQ(keys.PutBooleanPreference(nullptr, "usePreciseCursors", 0), kNoErr);
  EXPECT_EQ(keys.GetBooleanPreference("", "usePreciseCursors", &flag), kNoErr);
  EXPECT_EQ(flag, 0) << "no prefix is an empty one";
}

TEST_F(ServiceSuitesTest, PreferenceStringsAreCutBeforeACharacter) {
  const auto& keys = acquire<AIPreferenceSuite>(kAIPreferenceSuite, kAIPreferenceSuiteVersion);
  ASSERT_EQ(keys.PutStringPreference("P", "s", "ab\xE5\x88\x87"), kNoErr);
  const std::pair<std::int32_t, const char*> cases[] = {{1, ""}, {5, "ab"}, {6, "ab\xE5\x88\x87"}};
  for (const auto& [size, expected] : cases) {
    char buffer[7];
    std::memset(buffer, '#', sizeof buffer);
    ASSERT_EQ(keys.GetStringPreference("P", "s", buffer, size), kNoErr);
    EXPECT_STREQ(buffer, expected) << size;
    EXPECT_EQ(buffer[size], '#') << size;
  }
  char untouched[] = "default";
  EXPECT_EQ(keys.GetStringPreference("P", "none", untouched, sizeof untouched), kNoErr);
  EXPECT_STREQ(untouched, "default");
  EXPECT_EQ(keys.GetStringPreference("P", "s", untouched, 0), kBadParameterErr);
}

TEST_F(ServiceSuitesTest, RestoringAToolLeavesItsGroupAsItIs) {
  const auto& suite = acquire<AIToolSuite>(kAIToolSuite, kAIToolSuiteVersion);
  host::ToolTable& tools = host.tools();
  const auto add = [&](int group) {
    host::ToolRecord tool;
    tool.group = group;
    return tools.add(tool).handle;
  };
  const AIToolHandle select = add(0);
  const AIToolHandle round = add(0);
  const int group = tools.all().find(round)->group;
  const AIToolHandle cross = add(group);
  std::vector<AIToolHandle> changes;
  tools.onChange = [&](const host::ToolRecord*, const host::ToolRecord* now) {
    changes.push_back(now->handle);
  };
  EXPECT_EQ(suite.SetSelectedTool(cross), kNoErr);
  EXPECT_EQ(tools.visibleMember(group)->handle, cross);
  for (const AIToolHandle tool : {select, round, round}) EXPECT_EQ(suite.RestoreSelectedTool(tool), kNoErr);
  EXPECT_EQ(tools.visibleMember(group)->handle, cross);
  EXPECT_EQ(changes, (std::vector<AIToolHandle>{cross, select, round})) << "once for each change";
  AIToolHandle selected = nullptr;
  EXPECT_EQ(suite.GetSelectedTool(&selected), kNoErr);
  EXPECT_EQ(selected, round);
}

TEST_F(ServiceSuitesTest, AlertsReachTheUser) {
  const auto& user = acquire<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
  EXPECT_EQ(user.MessageAlert(text("done")), kNoErr) << "nobody shows it";
  host.showAlert = [&](const host::Alert& alert) {
    EXPECT_EQ(alert.text, "no room");
    EXPECT_EQ(alert.kind, host::AlertKind::Error);
  };
  EXPECT_EQ(user.ErrorAlert(text("no room")), kNoErr);
  EXPECT_EQ(host.alerts().size(), 2U);
  host.showAlert = [](const host::Alert&) { throw std::runtime_error("no display"); };
  EXPECT_EQ(user.MessageAlert(text("lost")), kSPExceptionError);
  host.showAlert = [](const host::Alert&) { throw std::bad_alloc(); };
  EXPECT_EQ(user.MessageAlert(text("lost")), kOutOfMemoryErr);
}

TEST_F(ServiceSuitesTest, RectanglesMayTouch) {
  const auto& math = acquire<AIRealMathSuite>(kAIRealMathSuite, kAIRealMathSuiteVersion);
  const AIRealRect outer{0, 10, 10, 0};
  EXPECT_EQ(math.AIRealRectInAIRealRect(&outer, &outer), 1);
  for (const AIRealRect& beyond :
       {AIRealRect{-1, 9, 9, 1}, AIRealRect{1, 11, 9, 1}, AIRealRect{1, 9, 11, 1}, AIRealRect{1, 9, 9, -1}}) {
    EXPECT_EQ(math.AIRealRectInAIRealRect(&beyond, &outer), 0);
  }
  EXPECT_EQ(math.AIRealRectInAIRealRect(nullptr, &outer), 0);
}

}  // namespace
