#include "UndoStep.h"

#include "Documents.h"

namespace host {

UndoStep::UndoStep(const Documents& documents, const std::string& name) {
  for (const auto& open : documents.all()) {
    open->document->beginStep(name);
    documents_.push_back(open->document);
  }
}

UndoStep::~UndoStep() {
  for (const auto& document : documents_) {
    if (const auto open = document.lock()) open->endStep();
  }
}

}  // namespace host
