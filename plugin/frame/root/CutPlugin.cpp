#include "CutPlugin.h"

#include "CutLayerDialog.h"
#include "CutOption.h"
#include "DocumentChangedNotifier.h"
#include "HMX_AISuiteManager.h"
#include "QtManager.h"
#include "RestoreMarkTool.h"
#include "SelectedLineTypesUpdateNotifier.h"
#include "TextModules.h"
#include "ToolkitPlugin.h"
#include "UIColorSchemeNotifier.h"

namespace Vandrell::Corvane {
namespace {

CutPlugin* sCutPluginInstance = nullptr;

}  // namespace

CutPlugin::CutPlugin(const SPMessageData& message) : HMX_AIPlugin(message) {
  if (startupError == kNoErr) startupError = Start(message);
}

CutPlugin* CutPlugin::GetInstance() {
  return sCutPluginInstance;
}

AIErr CutPlugin::Start(const SPMessageData& message) {
  RequestStartupSuites();
  // Never released: every suite stays held between messages.
  if (const AIErr error = suiteManager->Acquire(); error != kNoErr) return error;
  RVADMQtManager::QtManager::SetSPBasicSuite(message.basic);
  qRVADM::SetToolkitPlugin(pluginRef);
  if (const AIErr error = LocateResources(pluginRef, resourcePath); error != kNoErr) return error;
  RegisterTextModule("corvane");
  sCutPluginInstance = this;
  MakeTools();
  MakeMenus();
  return kNoErr;
}

AIErr CutPlugin::OnAppStartup() {
  layerDialog = new CutLayerDialog;
  AddDialog(layerDialog);
  documentChangedNotifier = MakeNotifier<DocumentChangedNotifier>(this);
  selectedLineTypesNotifier = MakeNotifier<SelectedLineTypesUpdateNotifier>(this);
  colorSchemeNotifier = MakeNotifier<UIColorSchemeNotifier>(this);
  if (StoredMarkTool() != 0) AddStartupAction(&RestoreMarkTool, this);
  return kNoErr;
}

AIErr CutPlugin::OnAppShutdown() {
  layerDialog = nullptr;  // it is destroyed with the other dialogs next
  return kNoErr;
}

CutTool* CutPlugin::GetTool(std::int64_t index) const {
  return index == kRoundRegmark || index == kCrossRegmark ? tools[index] : nullptr;
}

}  // namespace Vandrell::Corvane
