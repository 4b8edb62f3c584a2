// Suites over strings, paths, preferences, tools, notifiers and alerts.

#include <cmath>

#include "AIPaintStyle.h"
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

TEST_F(ServiceSuitesTest, PreferencesLeaveDefaultsAlone) {
  const auto& keys = ACQUIRE(AIPreferenceSuite);
  AIReal size = 17;
  EXPECT_EQ(keys.PutRealPreference("Corvane", "Size", NAN), kBadParameterErr);
  EXPECT_EQ(keys.GetRealPreference("Corvane", "Size", &size), kNoErr);
  EXPECT_EQ(size, 17);
  AIBoolean flag = 1;
  EXPECT_EQ(keys.PutBooleanPreference(nullptr, "usePreciseCursors", 0), kNoErr);
  EXPECT_EQ(keys.GetBooleanPreference("", "usePreciseCursors", &flag), kNoErr);
  EXPECT_EQ(flag, 0) << "no prefix is an empty one";
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

TEST_F(ServiceSuitesTest, PickersAnswerOnlyWhatTheUserAccepted) {
  const auto& user = ACQUIRE(AIUserSuite);
  const auto& paints = ACQUIRE(AIPaintStyleSuite);
  AIRGBColor color{1, 2, 3};
  AIColor paint{}, stale{};
  const auto ask = [&](AIBoolean expected) {
    AIBoolean accepted[] = {7, 7};
    EXPECT_EQ(user.GetRGBColor(text("Mark"), &color, &accepted[0]), kNoErr);
    EXPECT_EQ(paints.ShowColorPicker(nullptr, &paint, &accepted[1]), kNoErr);
    EXPECT_THAT(accepted, testing::Each(expected));
    EXPECT_EQ(color.red, expected == 1 ? 9 : 1);
    EXPECT_EQ(paint.kind, expected == 1 ? kNoneColor : kGrayColor);
  };
  ask(0);
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
  ask(0);
  answer = true;
  host.interactionAllowed = false;
  ask(0);
  host.interactionAllowed = true;
  ask(1);
  AIBoolean accepted = 0;
  stale.kind = kCustomColor;
  const auto foreign = reinterpret_cast<AISwatchRef>(plugin);
  EXPECT_TRUE(each(kBadParameterErr, user.GetRGBColor(nullptr, &color, &accepted),
                   user.GetRGBColor(text(), &color, nullptr),
                   paints.ShowColorPicker(nullptr, &stale, &accepted),
                   paints.ShowColorPicker(foreign, &paint, &accepted)));
}

TEST_F(ServiceSuitesTest, NumbersAreWrittenAndExpressionsEvaluated) {
  const auto& user = ACQUIRE(AIUserSuite);
  const AIUnicodeStringHandle typed = text("2 in + 5,08 mm"), shown = text();
  AIExpressionOptions options{3, 0, 50, 8, 1};
  AIBoolean flag = 7;
  AIReal result = 0;
  const auto evaluate = [&](AIUnicodeStringHandle from, const AIExpressionOptions* how) {
    return user.EvaluateExpression(from, how, shown, &flag, &result);
  };
  EXPECT_EQ(evaluate(typed, &options), kNoErr);
  EXPECT_EQ(std::make_pair(flag, result), std::make_pair(AIBoolean{0}, AIReal{50}));
  EXPECT_EQ(read(shown), "50");
  EXPECT_EQ(user.EvaluateExpression(text("1 kg"), &options, nullptr, &flag, &result), kNoErr);
  EXPECT_EQ(std::make_pair(flag, result), std::make_pair(AIBoolean{1}, AIReal{8}));
  EXPECT_EQ(user.RealToString(-2.675, 2, 0, shown), kNoErr);
  EXPECT_EQ(read(shown), "-2.68");
  AIExpressionOptions swapped = options, endless = options;
  swapped.minimum = 51;
  endless.maximum = HUGE_VAL;
  EXPECT_TRUE(each(kBadParameterErr, user.RealToString(NAN, 2, 0, shown), user.RealToString(1, -1, 0, shown),
                   user.RealToString(1, 2, 0, nullptr), evaluate(nullptr, &options), evaluate(typed, nullptr),
                   user.EvaluateExpression(typed, &options, shown, nullptr, &result),
                   user.EvaluateExpression(typed, &options, shown, &flag, nullptr), evaluate(typed, &swapped),
                   evaluate(typed, &endless)));
}

}  // namespace
