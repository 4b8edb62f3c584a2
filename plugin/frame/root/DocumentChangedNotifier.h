// Another document is current, or none.
#pragma once

#include "HMX_AINotifier.h"

namespace Vandrell::Corvane {

class CutPlugin;

class DocumentChangedNotifier : public HMX_AINotifier {
 public:
  explicit DocumentChangedNotifier(CutPlugin* owner);

  // The palette is of use with a document only, and colours chosen for the marks of another document are
  // forgotten.
  AIErr Notify(const AINotifierMessage& message) override;

 private:
  const CutPlugin& cutPlugin;
};

}  // namespace Vandrell::Corvane
