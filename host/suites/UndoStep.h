// One user action is one undo step.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace host {

class Document;
class Documents;

// What changes in the open documents while this lives is one step in each of them. Steps nest; the
// outermost names it. Documents may be opened and closed meanwhile.
class UndoStep {
 public:
  UndoStep(const Documents& documents, const std::string& name);
  UndoStep(const UndoStep&) = delete;
  UndoStep& operator=(const UndoStep&) = delete;
  ~UndoStep();

 private:
  std::vector<std::weak_ptr<Document>> documents_;
};

}  // namespace host
