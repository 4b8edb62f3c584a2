// The messages of a life, and what the plug-in does with them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KeyModifiers.h"
#include "Platform.h"
#include "Recorder.h"
#include "World.h"

namespace host {
namespace {

TEST(Life, MessagesComeInTheOrderOfAnApplication) {
  takeRecorded();  // those of former lives
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

TEST(Life, OptionKeyKeepsThePluginOut) {
  setKeyModifierSource([]() -> std::uint32_t { return kOptionKeyModifier; });
  Host host;
  Session session(host);
  const std::string complaint = session.loadPlugin(corvaneBundle());
  setKeyModifierSource(nullptr);
  EXPECT_THAT(complaint, testing::EndsWith("did not start: it answered -1"));
  for (const MenuItem& item : host.menus().items()) EXPECT_EQ(item.plugin, nullptr) << item.key;
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
