#include "DocumentChangedNotifier.h"

#include "CurrentDocument.h"
#include "CutLayerDialog.h"
#include "CutOption.h"
#include "CutPlugin.h"
#include "CutTool.h"

namespace Vandrell::Corvane {

DocumentChangedNotifier::DocumentChangedNotifier(CutPlugin* owner)
    : HMX_AINotifier(owner, "AI Document Changed Notifier", kAIDocumentChangedNotifier), cutPlugin(*owner) {}

AIErr DocumentChangedNotifier::Notify(const AINotifierMessage& /*message*/) {
  const bool hasDocument = HasDocument();
  CutLayerDialog* const palette = cutPlugin.GetLayerDialog();
  if (palette != nullptr && palette->IsShown()) palette->SetEnabled(hasDocument);
  for (const RegmarkShape shape : {kRoundRegmark, kCrossRegmark}) {
    if (CutTool* const tool = cutPlugin.GetTool(shape); tool != nullptr) tool->ResetColors();
  }
  return kNoErr;
}

}  // namespace Vandrell::Corvane
