// The road of a message through the plug-in.
#include <cstring>

#include "Annotator.h"
#include "HMX_AIMenuHandler.h"
#include "HMX_AINotifierHandler.h"
#include "HMX_AIPlugin.h"
#include "HMX_AITimerHandler.h"
#include "HMX_AIToolHandler.h"
#include "HostText.h"
#include "SuiteLevel.h"

AIErr HMX_AIPlugin::Dispatch(const char* caller, const char* selector, const void* message) {
  suiteManager->SetBasicSuite(static_cast<const SPMessageData*>(message)->basic);
  const SuiteLevel level(*suiteManager);
  if (IsEqual(caller, kSPInterfaceCaller) && IsEqual(selector, kSPInterfaceShutdownSelector)) {
    DestroyHandlers();
    return kNoErr;
  }
  const AIErr result = OfferToHandlers(caller, selector, message);
  if (std::strcmp(caller, kCallerAIAnnotation) != 0) return result;
  const auto& record = *static_cast<const AIAnnotatorMessage*>(message);
  Annotator* const annotator = FindAnnotator(record.annotator);
  return annotator != nullptr ? annotator->HandleMessage(selector, record) : result;
}

AIErr HMX_AIPlugin::OfferToHandlers(const char* caller, const char* selector, const void* message) {
  AIErr result = kNoErr;
  if (menuHandler != nullptr) result = menuHandler->HandleMessage(caller, selector, message);
  if (result == kNoErr && notifierHandler != nullptr) {
    result = notifierHandler->HandleMessage(caller, message);
  }
  if (result == kNoErr && timerHandler != nullptr) {
    result = timerHandler->HandleMessage(caller, selector, message);
  }
  if (result == kNoErr && toolHandler != nullptr) {
    result = toolHandler->HandleMessage(caller, selector, message);
  }
  return result;
}

HMX_AIPlugin::Annotator* HMX_AIPlugin::FindAnnotator(AIAnnotatorHandle handle) const {
  if (handle == nullptr) return nullptr;
  for (Annotator* annotator : annotators) {
    if (annotator->GetHandle() == handle) return annotator;
  }
  return nullptr;
}
