#include "HMX_AIPlugin.h"

#include <algorithm>

#include "AIRuntime.h"
#include "AIUser.h"
#include "Annotator.h"
#include "AppShutdownNotifier.h"
#include "AppStartupNotifier.h"
#include "FrameErrors.h"
#include "HMX_AIMenuHandler.h"
#include "HMX_AINotifierHandler.h"
#include "HMX_AITimerHandler.h"
#include "HMX_AIToolHandler.h"
#include "HMX_StartupActionNotifier.h"
#include "QtManager.h"
#include "RVADM_NonModalDialog.h"
#include "SPAccess.h"
#include "SPPlugins.h"
#include "SaveUserDataNotifier.h"
#include "SuiteLevel.h"
#include "TextModules.h"

namespace {

// What the frame itself needs while it comes up.
constexpr const char* kFrameSuites[] = {
    "AI Notifier Suite", "AI Folders Suite",         "AI File Path Suite", "AI Unicode String Suite",
    "SP Blocks Suite",   "AI Command Manager Suite", "SP Plug-ins Suite",
};

// Keeps the count of dialogs from coming to rest before the last palette is gone.
class CountedDialog {
 public:
  CountedDialog() { RVADMQtManager::QtManager::IncreaseDialogCount(); }
  CountedDialog(const CountedDialog&) = delete;
  CountedDialog& operator=(const CountedDialog&) = delete;
  ~CountedDialog() { RVADMQtManager::QtManager::DecreaseDialogCount(); }
};

}  // namespace

HMX_AIPlugin::HMX_AIPlugin(const SPMessageData& message)
    : suiteManager(&HMX_AISuiteManager::Instance()), pluginRef(message.self) {
  startupError = FetchPluginAccess(*message.basic);
  if (pluginAccess == nullptr) {
    if (startupError == kNoErr) startupError = kBadParameterErr;
    return;
  }
  startupError = kNoErr;
  suiteManager->Reset();
  suiteManager->SetBasicSuite(message.basic);
  for (const char* name : kFrameSuites) suiteManager->Request(name);
  const SuiteLevel level(*suiteManager);
  if (level.code() == kNoErr) sSPPlugins->SetPluginName(pluginRef, "corvane");
  MakeHandlers();
}

HMX_AIPlugin::~HMX_AIPlugin() {
  FreeTextState();
  DestroyHandlers();  // already gone after a shutdown message
}

// Through the basic suite itself: the suite manager is not ready before a plug-in has access.
AIErr HMX_AIPlugin::FetchPluginAccess(const SPBasicSuite& basic) {
  const void* suite = nullptr;
  AIErr error = basic.AcquireSuite(kSPAccessSuite, kSPAccessSuiteVersion, &suite);
  if (error != kNoErr) return error;
  sSPAccess = static_cast<const SPAccessSuite*>(suite);
  error = sSPAccess->GetPluginAccess(pluginRef, &pluginAccess);
  basic.ReleaseSuite(kSPAccessSuite, kSPAccessSuiteVersion);
  sSPAccess = nullptr;
  return error;
}

void HMX_AIPlugin::MakeHandlers() {
  using namespace Vandrell::AIPluginWrappers;
  menuHandler = std::make_unique<HMX_AIMenuHandler>();
  notifierHandler = std::make_unique<HMX_AINotifierHandler>();
  timerHandler = std::make_unique<HMX_AITimerHandler>();
  toolHandler = std::make_unique<HMX_AIToolHandler>();
  appStartupNotifier = MakeNotifier<AppStartupNotifier>(this);
  appShutdownNotifier = MakeNotifier<AppShutdownNotifier>(this);
  saveUserDataNotifier = MakeNotifier<SaveUserDataNotifier>(this);
}

void HMX_AIPlugin::DestroyHandlers() {
  menuHandler.reset();
  notifierHandler.reset();
  timerHandler.reset();
  toolHandler.reset();
}

AIErr HMX_AIPlugin::OnAppStartup() {
  return kNoErr;
}

AIErr HMX_AIPlugin::OnAppShutdown() {
  return kNoErr;
}

void HMX_AIPlugin::OnSaveUserData() {
  for (const std::unique_ptr<Dialog>& dialog : dialogs) dialog->OnCommit(0);
}

void HMX_AIPlugin::EndApplication() {
  OnAppShutdown();
  for (Annotator* annotator : annotators) annotator->Deactivate();
  if (!dialogs.empty()) DestroyDialogs();
  if (cursorResourceManager != nullptr) {
    sAIUser->DisposeCursorResourceMgr(cursorResourceManager);
    cursorResourceManager = nullptr;
  }
}

void HMX_AIPlugin::DestroyDialogs() {
  const CountedDialog counted;
  for (std::unique_ptr<Dialog>& dialog : dialogs) {
    if (sAIRuntime->IsEndingWithoutSaving() == 0) dialog->OnCommit(0);
    dialog.reset();
  }
  dialogs.clear();
}

AIErr HMX_AIPlugin::AddMenu(HMX_AIMenu* menu) {
  return menuHandler->Add(menu);
}

AIErr HMX_AIPlugin::RemoveMenu(HMX_AIMenu* menu) {
  return menuHandler != nullptr ? menuHandler->Remove(menu) : kMenuNotFoundErr;
}

AIErr HMX_AIPlugin::AddNotifier(HMX_AINotifier* notifier) {
  return notifierHandler->Add(notifier);
}

AIErr HMX_AIPlugin::RemoveNotifier(HMX_AINotifier* notifier) {
  return notifierHandler != nullptr ? notifierHandler->Remove(notifier) : kNotifierNotFoundErr;
}

AIErr HMX_AIPlugin::AddTool(HMX_AITool* tool) {
  return toolHandler->Add(tool);
}

AIErr HMX_AIPlugin::RemoveTool(HMX_AITool* tool) {
  return toolHandler != nullptr ? toolHandler->Remove(tool) : kToolNotFoundErr;
}

void HMX_AIPlugin::AddDialog(Dialog* dialog) {
  dialogs.emplace_back(dialog);
}

void HMX_AIPlugin::AddAnnotator(Annotator* annotator) {
  if (std::find(annotators.begin(), annotators.end(), annotator) == annotators.end()) {
    annotators.push_back(annotator);
  }
}

void HMX_AIPlugin::RemoveAnnotator(Annotator* annotator) {
  annotators.erase(std::remove(annotators.begin(), annotators.end(), annotator), annotators.end());
}

void HMX_AIPlugin::AddStartupAction(StartupAction action, void* argument) {
  if (startupActions.empty()) MakeNotifier<HMX_StartupActionNotifier>(this);
  startupActions.emplace_back(action, argument);
}

void HMX_AIPlugin::RunStartupActions() {
  std::size_t next = 0;
  while (next < startupActions.size()) {
    const auto [action, argument] = startupActions[next++];
    action(argument);
  }
  startupActions.clear();
}

AIErr HMX_AIPlugin::SetCursor(std::int32_t cursorID) {
  if (sAIUser == nullptr) {
    if (const AIErr error = RequestSuite(kAIUserSuite); error != kNoErr) return error;
    if (sAIUser == nullptr) return kSPSuiteNotFoundError;
  }
  if (cursorResourceManager == nullptr) {
    const AIErr error = sAIUser->CreateCursorResourceMgr(pluginRef, &cursorResourceManager);
    if (error != kNoErr) return error;
  }
  return sAIUser->SetCursor(cursorID, cursorResourceManager);
}

SPErr HMX_AIPlugin::RequestSuite(const char* name) {
  return suiteManager->Request(name);
}

SPErr HMX_AIPlugin::RequestSuite(const char* name, std::int32_t version) {
  return suiteManager->Request(name, version);
}
