#include "UnsavedQuestion.h"

#include <QMessageBox>
#include <QPushButton>
#include <QString>

#include "ProgramName.h"

namespace host {
namespace {

constexpr char kLoss[] = "Without saving they are lost.";

QString explanation(std::size_t others) {
  if (others == 0) return kLoss;
  const QString who =
      others == 1 ? QString("Another drawing has") : QString::number(others) + " other drawings have";
  return kLoss + QString("\n") + who + " unsaved changes as well.";
}

// A letter for each button, since Qt has none on most of its own: the first of its text that is still free.
void giveKeys(const QMessageBox& box) {
  QString taken;
  for (QAbstractButton* button : box.buttons()) {
    const QString text = button->text().remove('&');
    for (int i = 0; i < text.size(); ++i) {
      const QChar letter = text[i].toLower();
      if (letter < 'a' || letter > 'z' || taken.contains(letter)) continue;
      taken += letter;
      button->setText(QString(text).insert(i, '&'));
      break;
    }
  }
}

}  // namespace

UnsavedAnswer askAboutUnsaved(const QString& title, std::size_t others, QWidget* parent) {
  QMessageBox box(QMessageBox::Warning, kProgramName,
                  "Save the changes to \u201c" + title + "\u201d before closing it?",
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(explanation(others));
  box.setDefaultButton(QMessageBox::Save);
  box.setEscapeButton(QMessageBox::Cancel);
  const QAbstractButton* discardAll = nullptr;
  if (others > 0) {
    box.addButton(QMessageBox::SaveAll);
    discardAll = box.addButton("Discard All", QMessageBox::DestructiveRole);
  }
  giveKeys(box);
  const int code = box.exec();
  if (discardAll != nullptr && box.clickedButton() == discardAll) return UnsavedAnswer::DiscardAll;
  switch (code) {
    case QMessageBox::Save:
      return UnsavedAnswer::Save;
    case QMessageBox::SaveAll:
      return UnsavedAnswer::SaveAll;
    case QMessageBox::Discard:
      return UnsavedAnswer::Discard;
    default:
      return UnsavedAnswer::Cancel;
  }
}

}  // namespace host
