#include "TableHeadAnnotator.h"

#include <memory>
#include <utility>

#include "AIAnnotatorDrawer.h"
#include "HMX_AINotifier.h"
#include "HMX_AIPlugin.h"
#include "TableHeadStrips.h"

namespace Vandrell::Corvane {
namespace {

constexpr AIRGBColor kStripColor{65000, 0, 0};
constexpr double kStripLineWidth = 2.0;  // pixels

// False if the host does not say where in the view the strip lies.
bool ViewRect(const AIRealRect& strip, AIRect& pixels) {
  const AIRealPoint corners[2] = {{strip.left, strip.top}, {strip.right, strip.bottom}};
  int rect[4] = {};
  if (AIPluginWrappers::Annotator::ArtRectToViewRect(corners, rect) != kNoErr) return false;
  pixels = {rect[0], rect[1], rect[2], rect[3]};
  return true;
}

}  // namespace

class TableHeadAnnotator::DocumentChangedNotifier : public HMX_AINotifier {
 public:
  explicit DocumentChangedNotifier(TableHeadAnnotator* owner)
      : HMX_AINotifier(owner->plugin, "TableHeadAnnotator DocumentChanged Notifier",
                       kAIDocumentChangedNotifier),
        annotator(owner) {}
  AIErr Notify(const AINotifierMessage& message) override { return annotator->UpdateFor(message); }

 private:
  TableHeadAnnotator* annotator;
};

class TableHeadAnnotator::DocumentOpenedNotifier : public HMX_AINotifier {
 public:
  explicit DocumentOpenedNotifier(TableHeadAnnotator* owner)
      : HMX_AINotifier(owner->plugin, "TableHeadAnnotator DocumentOpened Notifier",
                       kAIDocumentOpenedNotifier),
        annotator(owner) {}
  AIErr Notify(const AINotifierMessage& message) override { return annotator->UpdateFor(message); }

 private:
  TableHeadAnnotator* annotator;
};

class TableHeadAnnotator::DocumentClosedNotifier : public HMX_AINotifier {
 public:
  explicit DocumentClosedNotifier(TableHeadAnnotator* owner)
      : HMX_AINotifier(owner->plugin, "TableHeadAnnotator DocumentClosed Notifier",
                       kAIDocumentClosedNotifier),
        annotator(owner) {}
  AIErr Notify(const AINotifierMessage& /*message*/) override { return annotator->Forget(); }

 private:
  TableHeadAnnotator* annotator;
};

TableHeadAnnotator::TableHeadAnnotator(HMX_AIPlugin* owner)
    : Annotator(owner),
      changedNotifier(owner->MakeNotifier<DocumentChangedNotifier>(this)),
      openedNotifier(owner->MakeNotifier<DocumentOpenedNotifier>(this)),
      closedNotifier(owner->MakeNotifier<DocumentClosedNotifier>(this)) {}

// At the end of the plug-in the notifiers go before the annotator: what the table holds no longer is not
// touched here.
TableHeadAnnotator::~TableHeadAnnotator() {
  for (HMX_AINotifier* notifier : {changedNotifier, openedNotifier, closedNotifier}) {
    if (plugin->RemoveNotifier(notifier) == kNoErr) delete notifier;
  }
}

void TableHeadAnnotator::Update(AIDocumentHandle current) {
  if (current == nullptr) InvalidateStrips();
  document = current;
  strips.clear();
  if (document != nullptr) strips = TableHeadStrips();
  InvalidateStrips();
}

AIErr TableHeadAnnotator::Draw(const AIAnnotatorMessage& message) {
  for (const AIRealRect& strip : strips) {
    AIRect pixels;
    if (!ViewRect(strip, pixels)) continue;
    sAIAnnotatorDrawer->SetColor(message.drawer, &kStripColor);
    sAIAnnotatorDrawer->SetLineWidth(message.drawer, kStripLineWidth);
    sAIAnnotatorDrawer->DrawRect(message.drawer, &pixels, 1);
  }
  return kNoErr;
}

AIErr TableHeadAnnotator::Invalidate(const AIAnnotatorMessage& /*message*/) {
  InvalidateStrips();
  return kNoErr;
}

AIErr TableHeadAnnotator::UpdateFor(const AINotifierMessage& message) {
  Update(static_cast<AIDocumentHandle>(message.notifyData));
  return kNoErr;
}

AIErr TableHeadAnnotator::Forget() {
  InvalidateStrips();
  document = nullptr;
  strips.clear();
  return kNoErr;
}

void TableHeadAnnotator::InvalidateStrips() const {
  for (const AIRealRect& strip : strips) {
    AIRect pixels;
    if (ViewRect(strip, pixels)) sAIAnnotator->InvalAnnotationRect(nullptr, &pixels);
  }
}

}  // namespace Vandrell::Corvane
