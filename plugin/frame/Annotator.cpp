#include "Annotator.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "AIDocumentView.h"
#include "HMX_AIPlugin.h"

namespace Vandrell::AIPluginWrappers {
namespace {

constexpr double kFarthestPixel = 1 << 30;

int WholePixel(double pixels) {
  return static_cast<int>(std::lround(std::clamp(pixels, -kFarthestPixel, kFarthestPixel)));
}

}  // namespace

Annotator::Annotator(HMX_AIPlugin* owner) : plugin(owner) {
  if (plugin->GetPluginRef() == nullptr || sAIAnnotator == nullptr) return;
  if (sAIAnnotator->AddAnnotator(plugin->GetPluginRef(), "Some Annotator", &annotator) != kNoErr) {
    annotator = nullptr;
    return;
  }
  plugin->AddAnnotator(this);
  sAIAnnotator->SetAnnotatorActive(annotator, 1);
}

Annotator::~Annotator() {
  if (plugin != nullptr) plugin->RemoveAnnotator(this);
}

AIErr Annotator::Draw(const AIAnnotatorMessage& /*message*/) {
  return kUnhandledMsgErr;
}

AIErr Annotator::Invalidate(const AIAnnotatorMessage& /*message*/) {
  return kUnhandledMsgErr;
}

void Annotator::Deactivate() {
  if (annotator == nullptr) return;
  sAIAnnotator->SetAnnotatorActive(annotator, 0);
  annotator = nullptr;
}

AIErr Annotator::HandleMessage(const char* selector, const AIAnnotatorMessage& message) {
  if (std::strcmp(selector, kSelectorAIDrawAnnotation) == 0) return Draw(message);
  if (std::strcmp(selector, kSelectorAIInvalAnnotation) == 0) return Invalidate(message);
  return kUnhandledMsgErr;
}

AIErr Annotator::ArtRectToViewRect(const AIRealPoint (&corners)[2], int (&rect)[4]) {
  int* pixels = rect;
  for (const AIRealPoint& corner : corners) {
    AIRealPoint view = {};
    const AIErr error = sAIDocumentView->ArtworkPointToViewPoint(nullptr, &corner, &view);
    if (error != kNoErr) return error;
    *pixels++ = WholePixel(view.x);
    *pixels++ = WholePixel(view.y);
  }
  return kNoErr;
}

}  // namespace Vandrell::AIPluginWrappers
