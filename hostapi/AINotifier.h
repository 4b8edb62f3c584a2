// Notifiers: messages about events of the host and its documents.
#pragma once

#include "AITypes.h"

constexpr char kAINotifierSuite[] = "AI Notifier Suite";
constexpr std::int32_t kAINotifierSuiteVersion = 1004;

struct AINotifierSuite {
  // From now on the plug-in gets a kAINotifierCaller message with this handle whenever `type` fires.
  // A registration lasts for the host's life and can only be put to sleep. Names need not be unique.
  AIErr (*AddNotifier)(SPPluginRef plugin, const char* name, const char* type, AINotifierHandle* notifier);
  AIErr (*SetNotifierActive)(AINotifierHandle notifier, AIBoolean active);
};

extern const AINotifierSuite* sAINotifier;

constexpr char kAINotifierCaller[] = "AI Notifier";  // the selector is the type

struct AINotifierMessage {
  SPMessageData d;
  AINotifierHandle notifier;
  const char* type;  // valid for the call
  void* notifyData;  // by type; null where the type says nothing
};

// Types the host fires, in the order of a life.
constexpr char kAIApplicationStartedNotifier[] = "AI Application Started Notifier";
constexpr char kAIOwlAppInitDispatchedNotifier[] = "AI OwlApp Init Dispatched Notifier";
constexpr char kAIDocumentOpenedNotifier[] = "AI Document Opened Notifier";  // data: AIDocumentHandle
constexpr char kAIDocumentChangedNotifier[] =
    "AI Document Changed Notifier";  // data: the current one, or null
constexpr char kAIArtSelectionChangedNotifier[] = "AI Art Selection Changed Notifier";
// The art, or the properties of what is selected: also behind every change of the selection.
constexpr char kAIArtPropertiesChangedNotifier[] = "AI Art Properties Changed Notifier";
constexpr char kAIUIBrightnessChangedNotifier[] = "AI UI Brightness Changed Notifier";
constexpr char kAIDocumentClosedNotifier[] = "AI Document Closed Notifier";  // data: AIDocumentHandle, closed
constexpr char kAISaveUserDataNotifier[] = "AI Save User Data Notifier";
constexpr char kAIApplicationShutdownNotifier[] = "AI Application Shutdown Notifier";
