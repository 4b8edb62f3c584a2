// Shows where the head of the cutting table is.
#pragma once

#include <vector>

#include "Annotator.h"

class HMX_AINotifier;
struct AINotifierMessage;

namespace Vandrell::Corvane {

// Paints a thin red strip along the outer side of the left edge of every artboard. It follows the documents
// as they come, change and go.
class TableHeadAnnotator : public AIPluginWrappers::Annotator {
 public:
  explicit TableHeadAnnotator(HMX_AIPlugin* owner);  // without strips until the first Update
  ~TableHeadAnnotator() override;

  // Takes the artboards of the current document, which `document` names; null: shows nothing from now on.
  // Artboards from the first one that the host does not tell on are left out.
  void Update(AIDocumentHandle document);

  AIErr Draw(const AIAnnotatorMessage& message) override;
  AIErr Invalidate(const AIAnnotatorMessage& message) override;

 private:
  class DocumentChangedNotifier;
  class DocumentOpenedNotifier;
  class DocumentClosedNotifier;

  AIErr UpdateFor(const AINotifierMessage& message);
  AIErr Forget();  // its document is gone
  void InvalidateStrips() const;

  std::vector<AIRealRect> strips;       // document coordinates
  AIDocumentHandle document = nullptr;  // whose strips these are; null for none
  HMX_AINotifier* changedNotifier;      // these belong to the plug-in's table of notifiers
  HMX_AINotifier* openedNotifier;
  HMX_AINotifier* closedNotifier;
};

}  // namespace Vandrell::Corvane
