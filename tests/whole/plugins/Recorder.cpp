// Registers for every notifier and remembers each message it gets, in order.
#include <string>

#include "AINotifier.h"
#include "SPBasic.h"

namespace {

std::string recorded;

void listen(const SPMessageData& data) {
  const void* suite = nullptr;
  if (data.basic->AcquireSuite(kAINotifierSuite, kAINotifierSuiteVersion, &suite) != kSPNoError) return;
  const auto* notifiers = static_cast<const AINotifierSuite*>(suite);
  for (const char* type :
       {kAIApplicationShutdownNotifier, kAISaveUserDataNotifier, kAIDocumentClosedNotifier,
        kAIDocumentChangedNotifier, kAIDocumentOpenedNotifier, kAIOwlAppInitDispatchedNotifier,
        kAIApplicationStartedNotifier, kAIArtSelectionChangedNotifier, kAIArtPropertiesChangedNotifier}) {
    AINotifierHandle handle = nullptr;
    notifiers->AddNotifier(data.self, "recorder", type, &handle);
  }
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) SPErr PluginMain(const char* caller, const char* selector,
                                                        void* message) {
  recorded += std::string(caller) + " | " + selector + "\n";
  if (std::string(selector) == kSPInterfaceStartupSelector) listen(*static_cast<SPMessageData*>(message));
  return kSPNoError;
}

__attribute__((visibility("default"))) const char* TakeRecordedMessages() {
  static std::string taken;
  taken.swap(recorded);
  recorded.clear();
  return taken.c_str();
}
}
