// The open documents and which of them is current.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "Document.h"
#include "View.h"

namespace host {

struct OpenDocument {
  std::shared_ptr<Document> document;  // never null
  std::string title;                   // for people
  std::string file;                    // absolute path; empty if it has none
  View view;

  AIDocumentHandle handle() const;
  AIDocumentViewHandle viewHandle() const;
};

class Documents {
 public:
  // Becomes the current document; its view shows the active artboard whole. The reference lasts until it
  // is closed.
  OpenDocument& open(std::shared_ptr<Document> document, std::string title, std::string file = {});
  // The current document's place is taken by the one that was opened last.
  void close(const Document& document);
  void setCurrent(const Document& document);  // must be open

  OpenDocument* current() { return current_; }  // null if none is open
  OpenDocument* find(AIDocumentHandle handle);  // null if it is not open
  OpenDocument* find(AIDocumentViewHandle handle);
  const std::vector<std::unique_ptr<OpenDocument>>& all() const { return open_; }  // in order of opening

 private:
  std::vector<std::unique_ptr<OpenDocument>> open_;
  OpenDocument* current_ = nullptr;
};

}  // namespace host
