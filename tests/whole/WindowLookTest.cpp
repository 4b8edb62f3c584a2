// Theme and language, changed while the window is open.
#include <gmock/gmock.h>

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QTranslator>
#include <QtTest/QTest>

#include "AINotifier.h"
#include "Recorder.h"
#include "SPTypes.h"
#include "Theme.h"
#include "WindowWorld.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr char kLanguageKey[] = "Language";
constexpr char kGerman[] = "brevia-Registermarken hinzufügen...";

class WindowLookTest : public WindowTest {
 protected:
  ~WindowLookTest() override {
    setenv("LANGUAGE", "C", 1);
    setTheme(Theme::Light);
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
  }

  QAction& item(const std::vector<std::string>& path, const std::string& text) {
    for (QAction* action : world.menu(path).actions()) {
      if (shownText(action->text()) == text) return *action;
    }
    throw std::runtime_error("no item " + text);
  }
  void speak(const std::string& language) { item({"View", "Language"}, language).trigger(); }
  bool speaks(const std::string& text) {
    return QTest::qWaitFor([&] { return world.textOf(kMarksKey) == text; });
  }
};

TEST_F(WindowLookTest, AnotherLanguageIsSpokenAtOnce) {
  window.openFiles({kStickers, kPoster});
  world.addMarks();
  const std::string english = world.textOf(kMarksKey);
  world.choose({"Window", world.textOf("Create Line Type Layers")});  // a palette
  const std::size_t tools = world.host.tools().all().size();
  const ToolRecord& ofPlugin = world.host.tools().all()[tools - 1];
  const std::string tool = ofPlugin.name;
  world.host.tools().select(ofPlugin.handle);

  speak("Deutsch");
  ASSERT_TRUE(speaks(kGerman));
  EXPECT_EQ(world.host.preferences().string("corvane-host", kLanguageKey), "de");
  EXPECT_THAT(world.menuTree(), HasSubstr(kGerman));
  EXPECT_THAT(world.menuTree(), Not(HasSubstr(english)));
  const std::string palette = ", " + world.textOf("Create Line Type Layers") + " [x]";
  EXPECT_TRUE(QTest::qWaitFor([&] { return world.menuTree().find(palette) != std::string::npos; }));
  EXPECT_EQ(world.host.tools().all().size(), tools);
  EXPECT_EQ(world.host.tools().selected()->name, tool);
  EXPECT_EQ(world.host.documents().all().size(), 2U);
  EXPECT_THAT(world.menuTree(), HasSubstr("Undo Add brevia Register Marks, ")) << "what was done stays";
  world.addMarks();
  EXPECT_TRUE(world.hasLayer("Regmark")) << "the plug-in works as before";

  speak("System");
  EXPECT_TRUE(speaks(english));
}

TEST_F(WindowLookTest, ALanguageWaitsUntilTheDialogIsClosedAndAThemeDoesNot) {
  window.openFiles({kStickers});
  QDialog dialog(&window);
  dialog.setModal(true);
  dialog.show();
  const QColor light = dialog.palette().color(QPalette::Window);
  speak("français");
  item({"View"}, "Dark").trigger();
  EXPECT_NE(dialog.palette().color(QPalette::Window), light);
  EXPECT_EQ(world.host.preferences().string("corvane-host", "Theme"), "dark");
  QTest::qWait(200);
  EXPECT_THAT(world.menuTree(), HasSubstr("Register Marks..."));
  dialog.close();
  EXPECT_TRUE(speaks("Ajouter des marques de repérage brevia..."));
}

// The recorder is a plug-in that notes what it gets.
TEST_F(WindowLookTest, PluginsLiveAnewForANewLanguage) {
  ASSERT_EQ(world.session.loadPlugin(testBundle("Recorder")), "");
  window.openFiles({kStickers});
  window.refresh();
  takeRecorded();
  speak("Deutsch");
  ASSERT_TRUE(speaks(kGerman));
  std::string expected;
  for (const char* message : {kAISaveUserDataNotifier, kAIApplicationShutdownNotifier}) {
    expected += std::string(kAINotifierCaller) + " | " + message + "\n";
  }
  for (const char* message : {kSPInterfaceShutdownSelector, kSPInterfaceStartupSelector}) {
    expected += std::string(kSPInterfaceCaller) + " | " + message + "\n";
  }
  for (const char* message : {kAIApplicationStartedNotifier, kAIOwlAppInitDispatchedNotifier,
                              kAIDocumentOpenedNotifier, kAIDocumentChangedNotifier}) {
    expected += std::string(kAINotifierCaller) + " | " + message + "\n";
  }
  EXPECT_EQ(takeRecorded(), expected);
}

}  // namespace
}  // namespace host
