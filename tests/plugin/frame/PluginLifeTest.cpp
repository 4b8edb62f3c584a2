// From the startup message to the end of the application.
#include <gmock/gmock.h>

#include <QApplication>

#include "AINotifier.h"
#include "Annotator.h"
#include "FramePlugin.h"
#include "IAIFilePath.h"
#include "QtManager.h"
#include "RVADM_NonModalDialog.h"

namespace {

using testing::ElementsAre;

class PluginLife : public FrameTest {
 protected:
  AIErr Fire(std::size_t notifier) {
    return Send(kAINotifierCaller, "", &AINotifierMessage::notifier, host.notifiers()[notifier].handle);
  }

  std::vector<std::string> events;
};

struct RecordingDialog : qRVADM::RVADM_NonModalDialog {
  RecordingDialog(std::string text, std::vector<std::string>& list) : name(std::move(text)), events(list) {}
  ~RecordingDialog() override { events.push_back(name + " destroyed"); }
  void OnCommit(int result) override {
    events.push_back(name + " commits " + std::to_string(result) +
                     ", dialogs counted: " + std::to_string(RVADMQtManager::QtManager::DialogCount()));
  }
  std::string name;
  std::vector<std::string>& events;
};

TEST_F(PluginLife, DialogsStoreAndGoAtTheEndOfTheApplication) {
  int argumentCount = 1;
  char programName[] = "test";
  char* arguments[] = {programName, nullptr};
  const QApplication application(argumentCount, arguments);
  for (const char* name : {"A", "B"}) plugin->AddDialog(new RecordingDialog(name, events));
  EXPECT_EQ(Fire(2), kNoErr);
  EXPECT_THAT(events, ElementsAre("A commits 0, dialogs counted: 2", "B commits 0, dialogs counted: 2"));
  events.clear();
  EXPECT_EQ(Fire(1), kNoErr);
  EXPECT_THAT(events, ElementsAre("A commits 0, dialogs counted: 3", "A destroyed",
                                  "B commits 0, dialogs counted: 2", "B destroyed"));
  EXPECT_EQ(RVADMQtManager::QtManager::DialogCount(), 0);
  events.clear();
  plugin->AddDialog(new RecordingDialog("C", events));
  host.endingWithoutSaving = true;
  Fire(1);
  EXPECT_THAT(events, ElementsAre("C destroyed")) << "an emergency exit stores nothing";
}

TEST_F(PluginLife, AnnotatorsSleepFromTheEndOfTheApplicationOn) {
  Vandrell::AIPluginWrappers::Annotator annotator(plugin.get());
  EXPECT_TRUE(host.annotators()[0].active);
  Fire(1);
  EXPECT_FALSE(host.annotators()[0].active);
  const std::uint64_t calls = host.refusal().callCount();
  annotator.Deactivate();
  EXPECT_EQ(host.refusal().callCount(), calls) << "it is switched off once";
}

struct StartupLog {
  HMX_AIPlugin* plugin;
  std::vector<std::string>* events;
};

void Second(void* argument) {
  static_cast<StartupLog*>(argument)->events->push_back("second");
}

void First(void* argument) {
  auto* log = static_cast<StartupLog*>(argument);
  log->events->push_back("first");
  log->plugin->AddStartupAction(&Second, argument);
}

TEST_F(PluginLife, StartupActionsRunOnceWithThoseAddedMeanwhile) {
  StartupLog log{plugin.get(), &events};
  plugin->AddStartupAction(&First, &log);
  plugin->AddStartupAction(&Second, &log);
  ASSERT_EQ(host.notifiers().size(), 4U) << "one notifier serves them all";
  EXPECT_EQ(host.notifiers()[3].type, kAIOwlAppInitDispatchedNotifier);
  EXPECT_EQ(Fire(3), kNoErr);
  EXPECT_THAT(events, ElementsAre("first", "second", "second"));
  EXPECT_FALSE(host.notifiers()[3].active);
  EXPECT_EQ(Fire(3), kNoErr);
  EXPECT_EQ(events.size(), 3U) << "the notifier is gone";
  plugin->AddStartupAction(&Second, &log);
  EXPECT_EQ(host.notifiers().size(), 5U) << "a later action needs a new one";
}

TEST_F(PluginLife, ThePointerIsAPictureOfThePlugin) {
  plugin->RequestSuite("AI Data Filter Suite");
  std::vector<std::int32_t> cursors;
  host.onCursor = [&](const host::PluginRecord& owner, std::int32_t id) {
    EXPECT_EQ(&owner, &record);
    cursors.push_back(id);
  };
  ASSERT_EQ(host.refusal().add("AI User Suite:CreateCursorResourceMgr:1"), "");
  EXPECT_EQ(plugin->SetCursor(16221), kSPCanceledByHostError);
  ASSERT_EQ(host.refusal().add("AI User Suite:CreateCursorResourceMgr:2"), "");
  EXPECT_EQ(plugin->SetCursor(16221), kNoErr);
  EXPECT_EQ(plugin->SetCursor(16224), kNoErr) << "the second manager would be refused";
  EXPECT_EQ(cursors, (std::vector<std::int32_t>{16221, 16224}));
  plugin->EndApplication();
  EXPECT_EQ(plugin->SetCursor(16221), kSPCanceledByHostError) << "the manager went with the application";
}

}  // namespace
