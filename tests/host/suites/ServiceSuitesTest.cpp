// Suites over strings, paths, folders, preferences, tools and registrations.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "AIAnnotator.h"
#include "AIFilePath.h"
#include "AIFolders.h"
#include "AINotifier.h"
#include "AIPreference.h"
#include "AIRealMath.h"
#include "AIRuntime.h"
#include "AITool.h"
#include "AIUser.h"
#include "ASUserInteraction.h"
#include "HostFixture.h"
#include "KeyModifiers.h"
#include "Platform.h"
#include "QtManager.h"
#include "SPAccess.h"
#include "SPPlugins.h"

namespace {

class ServiceSuitesTest : public HostFixture {};

TEST_F(ServiceSuitesTest, StringsAreValidUtf8) {
  const struct {
    std::string bytes;
    std::string kept;
    std::size_t units;
  } cases[] = {
      {"", "", 0},
      {"Kiss cut", "Kiss cut", 8},
      {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", 2},
      {"a\xFF", "a\xEF\xBF\xBD", 2},
      {std::string("a\0b", 3), std::string("a\0b", 3), 3},
  };
  for (const auto& c : cases) {
    const AIUnicodeStringHandle string = text(c.bytes);
    std::size_t units = 99;
    EXPECT_EQ(read(string), c.kept);
    EXPECT_EQ(strings.GetLength(string, &units), kNoErr);
    EXPECT_EQ(units, c.units);
    EXPECT_EQ(strings.Dispose(string), kNoErr);
  }
}

TEST_F(ServiceSuitesTest, StringBytesStayWhereTheyAre) {
  const AIUnicodeStringHandle string = text("short");
  const char* bytes = nullptr;
  ASSERT_EQ(strings.GetBytes(string, kAIPlatformCharacterEncoding, &bytes, nullptr), kNoErr);
  for (int i = 0; i < 1000; ++i) text("another");
  EXPECT_STREQ(bytes, "short");
  AIUnicodeStringHandle none = nullptr;
  EXPECT_EQ(strings.New("a", 1, static_cast<AICharacterEncoding>(2), &none), kBadParameterErr);
  EXPECT_EQ(strings.New(nullptr, 1, kAIUTF8CharacterEncoding, &none), kBadParameterErr);
  EXPECT_EQ(none, nullptr);
}

TEST_F(ServiceSuitesTest, APluginFindsItsBundle) {
  const auto& plugins = acquire<SPPluginsSuite>(kSPPluginsSuite, kSPPluginsSuiteVersion);
  const auto& files = acquire<AIFilePathSuite>(kAIFilePathSuite, kAIFilePathSuiteVersion);
  const auto& access = acquire<SPAccessSuite>(kSPAccessSuite, kSPAccessSuiteVersion);
  const SPPluginRef second = host.addPlugin("second", "/opt/plug-ins/gr\xC3\xBCn.bundle").handle;
  SPFileRef file = nullptr;
  AIFilePathHandle path = nullptr;
  ASSERT_EQ(plugins.GetPluginFileSpecification(second, &file), kNoErr);
  ASSERT_EQ(files.New(&path), kNoErr);
  const AIUnicodeStringHandle full = text("x");
  EXPECT_EQ(files.GetFullPath(path, full), kNoErr);
  EXPECT_EQ(read(full), "");
  ASSERT_EQ(files.SetFromFileReference(path, file), kNoErr);
  EXPECT_EQ(files.GetFullPath(path, full), kNoErr);
  EXPECT_EQ(read(full), "/opt/plug-ins/gr\xC3\xBCn.bundle");
  EXPECT_EQ(files.SetFromFileReference(path, reinterpret_cast<SPFileRef>(second)), kBadParameterErr);

  SPAccessRef first = nullptr;
  SPAccessRef other = nullptr;
  EXPECT_EQ(access.GetPluginAccess(plugin, &first), kNoErr);
  EXPECT_EQ(access.GetPluginAccess(second, &other), kNoErr);
  EXPECT_NE(first, nullptr);
  EXPECT_NE(first, other);
  EXPECT_EQ(plugins.SetPluginName(second, "corvane"), kNoErr);
  EXPECT_EQ(host.plugins().find(second)->name, "corvane");
}

TEST(FoldersSuite, KnowsTwoFolders) {
  host::Host host({}, {"/home/maria/.config/x", "/opt/plug-ins", ""});
  const void* table = nullptr;
  host.basic()->AcquireSuite(kAIFoldersSuite, kAIFoldersSuiteVersion, &table);
  const auto& folders = *static_cast<const AIFoldersSuite*>(table);
  host.basic()->AcquireSuite(kAIFilePathSuite, kAIFilePathSuiteVersion, &table);
  AIFilePathHandle path = nullptr;
  ASSERT_EQ(static_cast<const AIFilePathSuite*>(table)->New(&path), kNoErr);
  EXPECT_EQ(folders.FindFolder(kAIPluginsFolderType, path), kNoErr);
  EXPECT_EQ(folders.FindFolder(kAIUserWritablePluginsType, path), kNoSuchItemErr);  // this host has none
  EXPECT_EQ(folders.FindFolder(7, path), kNoSuchItemErr);
}

TEST_F(ServiceSuitesTest, PreferencesLeaveDefaultsAlone) {
  const auto& keys = acquire<AIPreferenceSuite>(kAIPreferenceSuite, kAIPreferenceSuiteVersion);
  AIReal size = 17;
  EXPECT_EQ(keys.GetRealPreference("Corvane", "Size", &size), kNoErr);
  EXPECT_EQ(size, 17);
  EXPECT_EQ(keys.PutRealPreference("Corvane", "Size", 6.5), kNoErr);
  EXPECT_EQ(keys.GetRealPreference("Corvane", "Size", &size), kNoErr);
  EXPECT_EQ(size, 6.5);
  std::int32_t number = 3;
  EXPECT_EQ(keys.GetIntegerPreference("Corvane", "Size", &number), kNoErr);
  EXPECT_EQ(number, 3);
  EXPECT_EQ(keys.PutRealPreference("Corvane", "Size", std::nan("")), kBadParameterErr);

  AIBoolean flag = 1;
  EXPECT_EQ(keys.PutBooleanPreference(nullptr, "usePreciseCursors", 0), kNoErr);
  EXPECT_EQ(keys.GetBooleanPreference("", "usePreciseCursors", &flag), kNoErr);
  EXPECT_EQ(flag, 0);
  EXPECT_EQ(keys.PreferenceExists("Corvane", "usePreciseCursors", &flag), kNoErr);
  EXPECT_EQ(flag, 0);
  EXPECT_EQ(keys.PreferenceExists(nullptr, "usePreciseCursors", &flag), kNoErr);
  EXPECT_EQ(flag, 1);
}

TEST_F(ServiceSuitesTest, PreferenceStringsAreCutBeforeACharacter) {
  const auto& keys = acquire<AIPreferenceSuite>(kAIPreferenceSuite, kAIPreferenceSuiteVersion);
  ASSERT_EQ(keys.PutStringPreference("P", "s", "ab\xE5\x88\x87"), kNoErr);
  const struct {
    std::int32_t size;
    const char* text;
  } cases[] = {{1, ""}, {2, "a"}, {3, "ab"}, {5, "ab"}, {6, "ab\xE5\x88\x87"}, {8, "ab\xE5\x88\x87"}};
  for (const auto& c : cases) {
    char buffer[9];
    std::memset(buffer, '#', sizeof buffer);
    ASSERT_EQ(keys.GetStringPreference("P", "s", buffer, c.size), kNoErr);
    EXPECT_STREQ(buffer, c.text) << c.size;
    EXPECT_EQ(buffer[c.size], '#') << c.size;
  }
  char untouched[] = "default";
  EXPECT_EQ(keys.GetStringPreference("P", "none", untouched, sizeof untouched), kNoErr);
  EXPECT_STREQ(untouched, "default");
  EXPECT_EQ(keys.GetStringPreference("P", "s", untouched, 0), kBadParameterErr);
}

TEST_F(ServiceSuitesTest, RegistrationsKeepTheirOrder) {
  const auto& notifiers = acquire<AINotifierSuite>(kAINotifierSuite, kAINotifierSuiteVersion);
  const auto& annotators = acquire<AIAnnotatorSuite>(kAIAnnotatorSuite, kAIAnnotatorSuiteVersion);
  AINotifierHandle first = nullptr;
  AINotifierHandle second = nullptr;
  ASSERT_EQ(notifiers.AddNotifier(plugin, "same", kAIDocumentChangedNotifier, &first), kNoErr);
  ASSERT_EQ(notifiers.AddNotifier(plugin, "same", kAIDocumentChangedNotifier, &second), kNoErr);
  EXPECT_NE(first, second);
  EXPECT_EQ(notifiers.SetNotifierActive(first, 0), kNoErr);
  EXPECT_EQ(host.notifiers()[0].handle, first);
  EXPECT_FALSE(host.notifiers()[0].active);
  EXPECT_TRUE(host.notifiers()[1].active);
  EXPECT_EQ(host.notifiers()[1].type, "AI Document Changed Notifier");

  AIAnnotatorHandle annotator = nullptr;
  ASSERT_EQ(annotators.AddAnnotator(plugin, "Some Annotator", &annotator), kNoErr);
  EXPECT_FALSE(host.annotators().find(annotator)->active);
  EXPECT_EQ(annotators.SetAnnotatorActive(annotator, 1), kNoErr);
  EXPECT_TRUE(host.annotators().find(annotator)->active);
  EXPECT_EQ(annotators.SetAnnotatorActive(reinterpret_cast<AIAnnotatorHandle>(first), 1), kBadParameterErr);
}

TEST_F(ServiceSuitesTest, RestoringAToolLeavesItsGroupAsItIs) {
  const auto& suite = acquire<AIToolSuite>(kAIToolSuite, kAIToolSuiteVersion);
  host::ToolTable& tools = host.tools();
  const auto add = [&](const char* name, int group) {
    host::ToolRecord tool;
    tool.name = name;
    tool.group = group;
    return tools.add(tool).handle;
  };
  const AIToolHandle select = add("select", 0);
  const AIToolHandle round = add("round", 0);
  const AIToolHandle cross = add("cross", tools.all().find(round)->group);
  const int group = tools.all().find(cross)->group;
  AIToolHandle selected = select;
  EXPECT_EQ(suite.GetSelectedTool(&selected), kNoErr);
  EXPECT_EQ(selected, nullptr);

  std::vector<AIToolHandle> changes;
  tools.onChange = [&](const host::ToolRecord*, const host::ToolRecord* now) {
    changes.push_back(now->handle);
  };
  EXPECT_EQ(suite.SetSelectedTool(select), kNoErr);
  EXPECT_EQ(tools.visibleMember(group)->handle, round);
  EXPECT_EQ(suite.SetSelectedTool(cross), kNoErr);
  EXPECT_EQ(tools.visibleMember(group)->handle, cross);
  EXPECT_EQ(suite.RestoreSelectedTool(select), kNoErr);
  EXPECT_EQ(suite.RestoreSelectedTool(round), kNoErr);
  EXPECT_EQ(tools.visibleMember(group)->handle, cross);
  EXPECT_EQ(suite.RestoreSelectedTool(round), kNoErr);  // no change
  EXPECT_EQ(changes, (std::vector<AIToolHandle>{select, cross, select, round}));
  EXPECT_EQ(suite.GetSelectedTool(&selected), kNoErr);
  EXPECT_EQ(selected, round);
}

TEST_F(ServiceSuitesTest, AlertsReachTheUser) {
  const auto& user = acquire<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
  std::string shown;
  host.showAlert = [&](const host::Alert& alert) { shown = alert.text; };
  EXPECT_EQ(user.ErrorAlert(text("no room")), kNoErr);
  EXPECT_EQ(shown, "no room");
  host.showAlert = nullptr;
  EXPECT_EQ(user.MessageAlert(text("done")), kNoErr);
  ASSERT_EQ(host.alerts().size(), 2U);
  EXPECT_EQ(host.alerts()[0].kind, host::AlertKind::Error);
  EXPECT_EQ(host.alerts()[1].kind, host::AlertKind::Message);
  EXPECT_EQ(host.alerts()[1].text, "done");

  host.showAlert = [](const host::Alert&) { throw std::runtime_error("no display"); };
  EXPECT_EQ(user.MessageAlert(text("lost")), kSPExceptionError);
  host.showAlert = [](const host::Alert&) { throw std::bad_alloc(); };
  EXPECT_EQ(user.MessageAlert(text("lost")), kOutOfMemoryErr);
}

TEST_F(ServiceSuitesTest, CursorResourcesAreOwnedByThePlugin) {
  const auto& user = acquire<AIUserSuite>(kAIUserSuite, kAIUserSuiteVersion);
  AIResourceManagerHandle manager = nullptr;
  ASSERT_EQ(user.CreateCursorResourceMgr(plugin, &manager), kNoErr);
  EXPECT_EQ(user.DisposeCursorResourceMgr(manager), kNoErr);
  EXPECT_EQ(user.DisposeCursorResourceMgr(manager), kBadParameterErr);
}

TEST_F(ServiceSuitesTest, SwitchesOfTheApplication) {
  const auto& interaction =
      acquire<ASUserInteractionSuite>(kASUserInteractionSuite, kASUserInteractionSuiteVersion);
  const auto& runtime = acquire<AIRuntimeSuite>(kAIRuntimeSuite, kAIRuntimeSuiteVersion);
  EXPECT_EQ(interaction.InteractWithUser(), 1);
  EXPECT_EQ(runtime.IsEndingWithoutSaving(), 0);
  host.interactionAllowed = false;
  host.endingWithoutSaving = true;
  EXPECT_EQ(interaction.InteractWithUser(), 0);
  EXPECT_EQ(runtime.IsEndingWithoutSaving(), 1);
}

TEST_F(ServiceSuitesTest, RectanglesMayTouch) {
  const auto& math = acquire<AIRealMathSuite>(kAIRealMathSuite, kAIRealMathSuiteVersion);
  const AIRealRect outer{0, 10, 10, 0};
  const struct {
    AIRealRect inner;
    AIBoolean inside;
  } cases[] = {{outer, 1},         {{1, 9, 9, 1}, 1},  {{-1, 9, 9, 1}, 0},   {{1, 11, 9, 1}, 0},
               {{1, 9, 11, 1}, 0}, {{1, 9, 9, -1}, 0}, {{20, 25, 25, 20}, 0}};
  for (const auto& c : cases) EXPECT_EQ(math.AIRealRectInAIRealRect(&c.inner, &outer), c.inside);
  EXPECT_EQ(math.AIRealRectInAIRealRect(nullptr, &outer), 0);
}

TEST(Manager, CountsDialogsDownToNone) {
  using RVADMQtManager::QtManager;
  QtManager::DecreaseDialogCount();
  EXPECT_EQ(QtManager::DialogCount(), 0);
  QtManager::IncreaseDialogCount();
  QtManager::IncreaseDialogCount();
  QtManager::DecreaseDialogCount();
  EXPECT_EQ(QtManager::DialogCount(), 1);
  QtManager::DecreaseDialogCount();
}

TEST(Manager, KeyModifiersComeFromTheirSource) {
  EXPECT_EQ(GetCurrentKeyModifiers(), 0U);
  host::setKeyModifierSource([] { return kShiftKeyModifier | kOptionKeyModifier; });
  EXPECT_EQ(GetCurrentKeyModifiers(), 0xA00U);
  host::setKeyModifierSource(nullptr);
  EXPECT_EQ(GetCurrentKeyModifiers(), 0U);
}

}  // namespace
