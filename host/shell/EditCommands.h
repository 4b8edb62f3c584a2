// The commands of the menu Edit.
#pragma once

#include <vector>

class QAction;

namespace host {

class Document;
struct WindowParts;

class EditCommands {
 public:
  // `parts` must outlive it.
  explicit EditCommands(const WindowParts& parts);

  // To be called after documents may have changed.
  void refresh();

 private:
  void makeUndo();
  void makeSelect();
  // One that works on the current document, while there is one.
  QAction* commandOn(const char* text, const char* keys, void (*run)(Document&));
  void deleteSelected();

  const WindowParts& parts_;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  std::vector<QAction*> ofDrawing_;    // those that need a drawing
  std::vector<QAction*> ofSelection_;  // and those that need something selected in it
};

}  // namespace host
