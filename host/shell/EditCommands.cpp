#include "EditCommands.h"

#include <QAction>

#include "Document.h"
#include "MenuBar.h"
#include "OpenDrawing.h"
#include "SelectionCommands.h"
#include "Session.h"
#include "WindowParts.h"

namespace host {
namespace {

// An action's text with the step that it undoes or redoes.
QString withStep(const char* text, const std::string& step) {
  return (QString(text) + " " + QString::fromStdString(step).replace('&', "&&")).trimmed();
}

void enable(const std::vector<QAction*>& actions, bool isEnabled) {
  for (QAction* action : actions) action->setEnabled(isEnabled);
}

}  // namespace

EditCommands::EditCommands(const WindowParts& parts) : parts_(parts) {
  makeUndo();
  makeSelect();
}

void EditCommands::makeUndo() {
  undo_ = commandOn("&Undo", "Ctrl+Z", [](Document& document) { document.undo(); });
  redo_ = commandOn("&Redo", "Ctrl+Shift+Z", [](Document& document) { document.redo(); });
  QAction* remove = parts_.command("&Delete", {QKeySequence("Del")}, [this] { deleteSelected(); });
  ofSelection_.push_back(remove);
  parts_.menus.setOwnItems("Edit Undo", {undo_, redo_, remove});
}

void EditCommands::makeSelect() {
  QAction* all = commandOn("Select &All", "Ctrl+A", selectAll);
  QAction* none = commandOn("D&eselect", "Ctrl+Shift+A", deselect);
  QAction* inverse = commandOn("Select &Inverse", "Ctrl+I", selectInverse);
  QAction* stroke = commandOn("Same Stroke &Color", "", selectSameStroke);
  ofDrawing_ = {all, inverse};
  ofSelection_.insert(ofSelection_.end(), {none, stroke});
  parts_.menus.setOwnItems("Edit Select", {all, none, inverse, stroke});
}

QAction* EditCommands::commandOn(const char* text, const char* keys, void (*run)(Document&)) {
  return parts_.command(text, {QKeySequence(keys)}, [this, run] {
    OpenDrawing* drawing = parts_.drawing();
    if (drawing == nullptr) return;
    run(drawing->document());
    parts_.refresh();
  });
}

void EditCommands::deleteSelected() {
  parts_.session.edit("Delete", [](Document& document) { deleteSelection(document); });
  parts_.refresh();
}

void EditCommands::refresh() {
  const OpenDrawing* drawing = parts_.drawing();
  const bool isOpen = drawing != nullptr;
  enable(ofDrawing_, isOpen);
  enable(ofSelection_, isOpen && !drawing->document().selection().empty());
  const std::string undoName = isOpen ? drawing->document().undoName() : std::string();
  const std::string redoName = isOpen ? drawing->document().redoName() : std::string();
  undo_->setText(withStep("&Undo", undoName));
  undo_->setEnabled(!undoName.empty());
  redo_->setText(withStep("&Redo", redoName));
  redo_->setEnabled(!redoName.empty());
}

}  // namespace host
