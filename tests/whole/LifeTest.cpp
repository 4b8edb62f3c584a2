// The messages of a life, and what the plug-in does with them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KeyModifiers.h"
#include "Platform.h"
#include "Recorder.h"
#include "World.h"

namespace host {
namespace {

using testing::ElementsAre;

TEST(Life, MessagesComeInTheOrderOfAnApplication) {
  Host host;
  {
    Session session(host);
    ASSERT_EQ(session.loadPlugin(testBundle("Recorder")), "");
    session.start();
    SvgDrawing drawing = drawingOf(squareOnPage());
    session.openDocument(drawing.document, "drawing", {});
    session.closeDocument(*drawing.document);
    session.shutdown();
  }
  EXPECT_EQ(takeRecorded(),
            "SP Interface | Startup\n"
            "AI Notifier | AI Application Started Notifier\n"
            "AI Notifier | AI OwlApp Init Dispatched Notifier\n"
            "AI Notifier | AI Document Opened Notifier\n"
            "AI Notifier | AI Document Changed Notifier\n"
            "AI Notifier | AI Document Closed Notifier\n"
            "AI Notifier | AI Document Changed Notifier\n"
            "AI Notifier | AI Save User Data Notifier\n"
            "AI Notifier | AI Application Shutdown Notifier\n"
            "SP Interface | Shutdown\n");
}

std::vector<std::string> notifierNames(Host& host) {
  std::vector<std::string> names;
  for (const NotifierRecord& notifier : host.notifiers()) names.push_back(notifier.name);
  return names;
}

TEST(Life, NotifiersAreRegisteredAsThePluginComesUp) {
  ensureApplication();
  Host host;
  Session session(host);
  ASSERT_EQ(session.loadPlugin(corvaneBundle()), "");
  EXPECT_THAT(notifierNames(host),
              ElementsAre("AIPlugWrap Plugin Startup Notifier", "AIPlugWrap Plugin Shutdown Notifier",
                          "AIPlugWrap Plugin Save Data Notifier"));
  session.start();
  EXPECT_THAT(notifierNames(host),
              ElementsAre("AIPlugWrap Plugin Startup Notifier", "AIPlugWrap Plugin Shutdown Notifier",
                          "AIPlugWrap Plugin Save Data Notifier", "AI Document Changed Notifier",
                          "AI Art Properties Changed Notifier", "UI Color Scheme Notifier"));
}

TEST(Life, TheStoredToolBringsADeferredActionThatRunsOnce) {
  ensureApplication();
  for (const std::int32_t stored : {0, 1}) {
    Host host;
    host.preferences().put("Corvane", "SelectedTool", stored);
    Session session(host);
    ASSERT_EQ(session.loadPlugin(corvaneBundle()), "");
    session.start();
    std::vector<bool> active;
    for (const NotifierRecord& notifier : host.notifiers()) {
      if (notifier.name == "HMX_StartupActionNotifier") active.push_back(notifier.active);
    }
    EXPECT_EQ(active.size(), stored == 0 ? 0U : 1U);
    EXPECT_THAT(active, testing::Each(false)) << "it has fired and is put to sleep";
  }
}

TEST(Life, MenuTreeStandsWithItsKeysGroupsAndOptions) {
  World world;
  ASSERT_EQ(world.complaint, "");
  struct Row {
    const char* key;
    const char* group;
    bool wantsUpdate;
    std::int32_t needsState;
  };
  const std::vector<Row> expected{{"Vandrell", "Tool Palettes", false, 0},
                                  {"corvane ", "Vandrell", false, 0},
                                  {"Vandrell ", "Preferences", false, 0},
                                  {"Create Line Type Layers", "corvane ", true, 0},
                                  {"Add brevia Register Marks...", "corvane ", false, kIfOpenDocument},
                                  {"corvane Preferences...", "Vandrell ", false, 0},
                                  {"Vandrell  ", "Help Menu", false, 0},
                                  {"Legal Notices...", "VandrellHelpCustom", false, 0}};
  std::size_t row = 0;
  for (const MenuItem& item : world.host.menus().items()) {
    if (item.plugin == nullptr) continue;
    ASSERT_LT(row, expected.size());
    EXPECT_EQ(item.key, expected[row].key);
    EXPECT_EQ(item.text, std::string(expected[row].key).substr(0, item.text.size())) << "but for blanks";
    EXPECT_EQ(world.host.menus().groups().find(item.group)->name, expected[row].group) << item.key;
    EXPECT_EQ(item.wantsUpdate, expected[row].wantsUpdate) << item.key;
    EXPECT_EQ(item.needsState, expected[row].needsState) << item.key;
    ++row;
  }
  EXPECT_EQ(row, expected.size());
}

TEST(Life, EveryMenuItemAnswersZeroWithAndWithoutADocument) {
  World world;
  for (const char* key : {"Create Line Type Layers", "corvane Preferences...", "Legal Notices..."}) {
    EXPECT_EQ(world.session.chooseMenuItem(key), kSPNoError) << key;
  }
  EXPECT_FALSE(world.session.chooseMenuItem(kMarksKey).has_value()) << "disabled without a document";
  world.open(squareOnPage());
  EXPECT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
}

TEST(Life, OptionKeyKeepsThePluginOut) {
  setKeyModifierSource([]() -> std::uint32_t { return kOptionKeyModifier; });
  Host host;
  Session session(host);
  const std::string complaint = session.loadPlugin(corvaneBundle());
  setKeyModifierSource(nullptr);
  EXPECT_THAT(complaint, testing::EndsWith("did not start: it answered -1"));
  for (const MenuItem& item : host.menus().items()) EXPECT_EQ(item.plugin, nullptr) << item.key;
}

TEST(Life, MessagesThatAreNobodysAnswerZero) {
  World world;
  SPPluginRef plugin = world.host.plugins()[0].handle;
  const auto send = [&](const char* caller, const char* selector) {
    AIMenuMessage message{};  // with a handle of null
    return world.session.send(plugin, caller, selector, message.d);
  };
  for (const char* caller : {"AI Menu", "AI Notifier", "AI Timer", "AI Tool", "AI Annotation", "Nobody"}) {
    EXPECT_EQ(send(caller, "AI Go"), kSPNoError) << caller;
  }
  EXPECT_EQ(send("SP Interface", "Startup"), kSPNoError) << "a second startup matches nothing";
}

TEST(Life, ManyLivesInOneProcessLeaveNothingHeldTwice) {
  std::int32_t holds = 0;
  for (int life = 0; life < 20; ++life) {
    World world(squareOnPage());
    ASSERT_EQ(world.complaint, "");
    EXPECT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
    world.session.shutdown();
    if (life < 2) holds = world.host.holds();  // one suite is acquired once a process, in the first life
    EXPECT_EQ(world.host.holds(), holds);
  }
}

TEST(Life, LoadFailuresNameFileAndReason) {
  const std::string bundles = CORVANE_TEST_BUNDLES;
  const std::vector<std::pair<std::string, std::string>> table{
      {"Missing", "there is no plug-in at " + bundles + "/Missing.bundle"},
      {"NoEntry",
       "the plug-in's code " + bundles + "/NoEntry.bundle/Contents/Linux/NoEntry.so has no entry PluginMain"},
      {"Refuses", "the plug-in " + bundles + "/Refuses.bundle did not start: it answered 'NOPE'"},
      {"Throws", "the plug-in " + bundles + "/Throws.bundle did not start: it answered 'Excp'"}};
  for (const auto& [name, sentence] : table) {
    Host host;
    Session session(host);
    EXPECT_EQ(session.loadPlugin(testBundle(name)), sentence);
    session.start();  // the host stays usable
    SvgDrawing drawing = drawingOf(squareOnPage());
    session.openDocument(drawing.document, "drawing", {});
    EXPECT_NE(host.currentDocument(), nullptr);
  }
}

}  // namespace
}  // namespace host
