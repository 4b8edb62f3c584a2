// How a message finds its object, and whose result the host gets.
#include <gmock/gmock.h>

#include <functional>

#include "AIError.h"
#include "Annotator.h"
#include "FramePlugin.h"
#include "HMX_AIMenu.h"
#include "HMX_AINotifier.h"
#include "HMX_AITool.h"

namespace {

using testing::ElementsAre;

// Any handle will do that no other object carries; 0 is null.
template <typename Handle>
Handle HandleOf(std::size_t number) {
  static char places[1000];
  return number == 0 ? nullptr : reinterpret_cast<Handle>(&places[number]);
}

struct Log {
  std::vector<std::string> events;
  AIErr result = kNoErr;  // what everybody answers
  AIErr Add(std::string event) {
    events.push_back(std::move(event));
    return result;
  }
};

struct LoggingMenu : HMX_AIMenu {
  LoggingMenu(HMX_AIPlugin* owner, std::size_t handle, Log& list)
      : HMX_AIMenu(owner, "no such group", "-", 0), log(list) {
    item = HandleOf<AIMenuItemHandle>(handle);
  }
  AIErr Go(const AIMenuMessage&) override { return inner ? inner() : log.Add("menu goes"); }
  AIErr Update(const AIMenuMessage&) override { return log.Add("menu updates"); }
  Log& log;
  std::function<AIErr()> inner;
};

struct LoggingNotifier : HMX_AINotifier {
  LoggingNotifier(HMX_AIPlugin* owner, const char* text, std::size_t handle, Log& list)
      : HMX_AINotifier(owner, text, "a type"), name(text), log(list) {
    notifier = HandleOf<AINotifierHandle>(handle);
  }
  AIErr Notify(const AINotifierMessage&) override { return log.Add(name); }
  std::string name;
  Log& log;
};

struct LoggingTool : HMX_AITool {
  LoggingTool(HMX_AIPlugin* owner, std::size_t handle, Log& list)
      : HMX_AITool(owner, "logging", "Logging", 0, 1, nullptr), log(list) {
    tool = HandleOf<AIToolHandle>(handle);
  }
  AIErr MouseDrag(const AIToolMessage&) override { return log.Add("drags"); }
  AIErr Deselect(const AIToolMessage&) override { return log.Add("deselects"); }
  AIErr Reselect(const AIToolMessage&) override { return log.Add("reselects"); }
  Log& log;
};

struct DrawingAnnotator : Vandrell::AIPluginWrappers::Annotator {
  DrawingAnnotator(HMX_AIPlugin* owner, Log& list) : Annotator(owner), log(list) {}
  AIErr Draw(const AIAnnotatorMessage&) override { return log.Add("draws"); }
  Log& log;
};

class Dispatch : public FrameTest {
 protected:
  void SetUp() override {
    plugin->MakeMenu<LoggingMenu>(plugin.get(), 0, log);  // what the host refused carries no handle
    plugin->MakeMenu<LoggingMenu>(plugin.get(), 101, log);
    plugin->MakeNotifier<LoggingNotifier>(plugin.get(), "first", 102, log);
    plugin->MakeNotifier<LoggingNotifier>(plugin.get(), "second", 103, log);
    plugin->AddTool(new LoggingTool(plugin.get(), 0, log));
    plugin->AddTool(new LoggingTool(plugin.get(), 104, log));
  }
  ~Dispatch() override { plugin.reset(); }

  AIErr Menu(const char* selector, std::size_t handle) {
    return Send("AI Menu", selector, &AIMenuMessage::menuItem, HandleOf<AIMenuItemHandle>(handle));
  }
  AIErr Notify(std::size_t handle) {
    return Send("AI Notifier", "any", &AINotifierMessage::notifier, HandleOf<AINotifierHandle>(handle));
  }
  AIErr Tool(const char* selector, std::size_t handle) {
    return Send("AI Tool", selector, &AIToolMessage::tool, HandleOf<AIToolHandle>(handle));
  }
  AIErr Annotate(const char* selector, AIAnnotatorHandle handle) {
    return Send("AI Annotation", selector, &AIAnnotatorMessage::annotator, handle);
  }

  Log log;
};

TEST_F(Dispatch, MenusAndToolsAnswerForThemselvesAndNotifiersDoNot) {
  log.result = 7;
  EXPECT_EQ(Menu("AI Go", 101), 7);
  EXPECT_EQ(Menu("AI Update", 101), 7);
  EXPECT_EQ(Menu("AI Gone", 101), 0);
  EXPECT_EQ(Notify(103), 0);
  EXPECT_EQ(Notify(102), 0);
  for (const char* selector : {"AI Mouse Drag", "AI Deselect", "AI Reselect"}) {
    EXPECT_EQ(Tool(selector, 104), 7) << selector;
  }
  EXPECT_EQ(Tool("AI Decrease Diameter", 104), 0);
  EXPECT_THAT(log.events,
              ElementsAre("menu goes", "menu updates", "second", "first", "drags", "deselects", "reselects"));
}

TEST_F(Dispatch, UnknownAndNullHandlesReachNobody) {
  log.result = 7;
  for (const std::size_t handle : {std::size_t{0}, std::size_t{999}}) {
    EXPECT_EQ(Menu("AI Go", handle), 0);
    EXPECT_EQ(Notify(handle), 0);
    EXPECT_EQ(Tool("AI Deselect", handle), 0);
    EXPECT_EQ(Annotate("AI Draw", HandleOf<AIAnnotatorHandle>(handle)), 0);
  }
  EXPECT_TRUE(log.events.empty());
}

TEST_F(Dispatch, AnnotatorsAnswerLast) {
  DrawingAnnotator annotator(plugin.get(), log);
  const AIAnnotatorHandle handle = annotator.GetHandle();
  log.result = 7;
  EXPECT_EQ(Annotate("AI Draw", handle), 7);
  EXPECT_EQ(Annotate("AI Invalidate", handle), kUnhandledMsgErr);
  EXPECT_EQ(Annotate("AI Go", handle), kUnhandledMsgErr);
  annotator.Deactivate();
  EXPECT_EQ(Annotate("AI Draw", handle), 0);
  EXPECT_THAT(log.events, ElementsAre("draws"));
}

TEST_F(Dispatch, MessagesNestAndAnExceptionClosesTheirLevel) {
  auto* menu = plugin->MakeMenu<LoggingMenu>(plugin.get(), 106, log);
  menu->inner = [this] {
    Notify(102);
    return plugin->Nesting();
  };
  EXPECT_EQ(Menu("AI Go", 106), 2);
  EXPECT_THAT(log.events, ElementsAre("first"));
  menu->inner = []() -> AIErr { throw ai::Error(kNoDocumentErr); };
  EXPECT_THROW(Menu("AI Go", 106), ai::Error);
  EXPECT_EQ(plugin->Nesting(), 1);
}

}  // namespace
