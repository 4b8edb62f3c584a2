#include "UnsavedQuestion.h"

#include <QMessageBox>

#include "ProgramName.h"

namespace host {

UnsavedAnswer askAboutUnsaved(const QString& title, QWidget* parent) {
  QMessageBox box(QMessageBox::Warning, kProgramName,
                  "Save the changes to \u201c" + title + "\u201d before closing it?",
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText("Without saving they are lost.");
  box.setDefaultButton(QMessageBox::Save);
  box.setEscapeButton(QMessageBox::Cancel);
  switch (box.exec()) {
    case QMessageBox::Save:
      return UnsavedAnswer::Save;
    case QMessageBox::Discard:
      return UnsavedAnswer::Discard;
    default:
      return UnsavedAnswer::Cancel;
  }
}

}  // namespace host
