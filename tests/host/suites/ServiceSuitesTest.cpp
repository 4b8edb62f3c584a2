// Suites over strings, paths, preferences, tools, notifiers and alerts.

#include <cmath>
#include <cstring>

#include "AIFilePath.h"
#include "AIPaintStyle.h"
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

TEST_F(ServiceSuitesTest, PickersAnswerOnlyWhatTheUserAccepted) {
  const auto& user = acquire<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
  const auto& paints = acquire<AIPaintStyleSuite>(kAIPaintStyleSuite, kAIPaintStyleSuiteVersion);
  AIRGBColor color{1, 2, 3};
  AIColor paint{};
  const auto ask = [&](bool expected) {
    AIBoolean accepted = 7;
    EXPECT_EQ(user.GetRGBColor(text("Mark"), &color, &accepted), kNoErr);
    EXPECT_EQ(accepted, expected ? 1 : 0);
    EXPECT_EQ(color.red, expected ? 9 : 1);
    accepted = 7;
    EXPECT_EQ(paints.ShowColorPicker(nullptr, &paint, &accepted), kNoErr);
    EXPECT_EQ(accepted, expected ? 1 : 0);
    EXPECT_EQ(paint.kind, expected ? kNoneColor : kGrayColor);
  };
  ask(false);
  bool answer = false;
  host.pickRGBColor = [&](const std::string& title, AIRGBColor& chosen) {
    EXPECT_EQ(title, "Mark");
    chosen.red = 9;
    return answer;
  };
  host.pickPaint = [&](AISwatchRef, AIColor& chosen) {
    chosen.kind = kNoneColor;
    return answer;
  };
  ask(false);
  answer = true;
  host.interactionAllowed = false;
  ask(false);
  host.interactionAllowed = true;
  ask(true);

  AIBoolean accepted = 0;
  AIColor stale{};
  stale.kind = kCustomColor;
  const auto foreign = reinterpret_cast<AISwatchRef>(plugin);
  EXPECT_EQ(codes(user.GetRGBColor(nullptr, &color, &accepted), user.GetRGBColor(text(), &color, nullptr),
                  paints.ShowColorPicker(nullptr, &stale, &accepted),
                  paints.ShowColorPicker(foreign, &paint, &accepted)),
            std::vector<AIErr>(4, kBadParameterErr));
  AIReal factor = 0;
  EXPECT_EQ(user.GetUIScaleFactor(&factor), kNoErr);
  EXPECT_EQ(factor, 1);
  host.uiScaleFactor = [] { return 1.5; };
  EXPECT_EQ(user.GetUIScaleFactor(&factor), kNoErr);
  EXPECT_EQ(factor, 1.5);
}

TEST_F(ServiceSuitesTest, NumbersAreWrittenAndExpressionsEvaluated) {
  const auto& user = acquire<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
  const AIUnicodeStringHandle typed = text("2 in + 5,08 mm"), shown = text();
  AIExpressionOptions options{3, 0, 50, 8, 1};
  AIBoolean flag = 7;
  AIReal result = 0;
  EXPECT_EQ(user.EvaluateExpression(typed, &options, shown, &flag, &result), kNoErr);
  EXPECT_EQ(std::make_pair(flag, result), std::make_pair(AIBoolean{0}, AIReal{50}));
  EXPECT_EQ(read(shown), "50");
  EXPECT_EQ(user.EvaluateExpression(text("1 kg"), &options, nullptr, &flag, &result), kNoErr);
  EXPECT_EQ(std::make_pair(flag, result), std::make_pair(AIBoolean{1}, AIReal{8}));
  EXPECT_EQ(user.RealToString(-2.675, 2, 0, shown), kNoErr);
  EXPECT_EQ(read(shown), "-2.68");

  AIExpressionOptions swapped = options, endless = options;
  swapped.minimum = 51;
  endless.maximum = HUGE_VAL;
  EXPECT_EQ(codes(user.RealToString(std::nan(""), 2, 0, shown), user.RealToString(1, -1, 0, shown),
                  user.RealToString(1, 2, 0, nullptr),
                  user.EvaluateExpression(nullptr, &options, shown, &flag, &result),
                  user.EvaluateExpression(typed, nullptr, shown, &flag, &result),
                  user.EvaluateExpression(typed, &options, shown, nullptr, &result),
                  user.EvaluateExpression(typed, &options, shown, &flag, nullptr),
                  user.EvaluateExpression(typed, &swapped, shown, &flag, &result),
                  user.EvaluateExpression(typed, &endless, shown, &flag, &result)),
            std::vector<AIErr>(9, kBadParameterErr));
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
