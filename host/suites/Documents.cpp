#include "Documents.h"

#include <algorithm>
#include <utility>

namespace host {

AIDocumentHandle OpenDocument::handle() const {
  return makeHandle<AIDocumentHandle>(HandleKind::Document, document->serial(), 1);
}

AIDocumentViewHandle OpenDocument::viewHandle() const {
  return makeHandle<AIDocumentViewHandle>(HandleKind::View, document->serial(), 1);
}

OpenDocument& Documents::open(std::shared_ptr<Document> document, std::string title, std::string file) {
  View view(document->scale());
  const DocumentState& state = document->state();
  if (state.activeArtboard < state.artboards.size()) {
    view.show(state.artboards[state.activeArtboard].position);
  }
  open_.push_back(std::make_unique<OpenDocument>(
      OpenDocument{std::move(document), std::move(title), std::move(file), view}));
  current_ = open_.back().get();
  return *current_;
}

void Documents::close(const Document& document) {
  const auto found = std::find_if(open_.begin(), open_.end(), [&](const auto& candidate) {
    return candidate->document.get() == &document;
  });
  if (found == open_.end()) return;
  const bool wasCurrent = found->get() == current_;
  open_.erase(found);
  if (wasCurrent) current_ = open_.empty() ? nullptr : open_.back().get();
}

void Documents::setCurrent(const Document& document) {
  for (const auto& candidate : open_) {
    if (candidate->document.get() == &document) current_ = candidate.get();
  }
}

OpenDocument* Documents::find(AIDocumentHandle handle) {
  for (const auto& candidate : open_) {
    if (handle != nullptr && candidate->handle() == handle) return candidate.get();
  }
  return nullptr;
}

OpenDocument* Documents::find(AIDocumentViewHandle handle) {
  for (const auto& candidate : open_) {
    if (handle != nullptr && candidate->viewHandle() == handle) return candidate.get();
  }
  return nullptr;
}

}  // namespace host
