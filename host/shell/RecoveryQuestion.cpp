#include "RecoveryQuestion.h"

#include <QDateTime>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "DeadSessions.h"
#include "ProgramName.h"

namespace host {
namespace {

constexpr int kWidth = 460;  // pixels of the interface
constexpr int kMostRows = 8;

QString sentence(std::size_t count) {
  return QString(kProgramName) + " ended without saving " +
         (count == 1 ? QString("a drawing.") : QString::number(count) + " drawings.");
}

QString rowOf(const LostDrawing& drawing) {
  const QString time =
      QLocale().toString(QDateTime::fromSecsSinceEpoch(drawing.note.time), QLocale::ShortFormat);
  const QString place =
      drawing.note.file.empty() ? "in no file yet" : QString::fromStdString(drawing.note.file);
  return QString::fromStdString(drawing.note.title) + "   " + time + "\n" + place;
}

QListWidget* makeList(const std::vector<LostDrawing>& drawings) {
  auto* list = new QListWidget;
  list->setAccessibleName("Unsaved drawings");
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setTextElideMode(Qt::ElideMiddle);
  for (const LostDrawing& drawing : drawings) {
    auto* item = new QListWidgetItem(rowOf(drawing), list);
    item->setToolTip(QString::fromStdString(drawing.note.file));
  }
  const int rows = qMin(list->count(), kMostRows);
  list->setFixedHeight(rows * list->sizeHintForRow(0) + 2 * list->frameWidth());
  return list;
}

}  // namespace

RecoveryAnswer askAboutLost(const std::vector<LostDrawing>& drawings, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setWindowTitle(kProgramName);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(new QLabel(sentence(drawings.size())));
  layout->addWidget(makeList(drawings));
  auto* hint = new QLabel("What is recovered opens as unsaved changes; no file is written before you save.");
  hint->setWordWrap(true);
  layout->addWidget(hint);
  auto* buttons = new QDialogButtonBox;
  QPushButton* recover = buttons->addButton("&Recover", QDialogButtonBox::AcceptRole);
  QPushButton* discard = buttons->addButton("&Discard", QDialogButtonBox::DestructiveRole);
  buttons->addButton("&Later", QDialogButtonBox::RejectRole);
  layout->addWidget(buttons);
  recover->setDefault(true);
  recover->setFocus();
  constexpr int kDiscarded = QDialog::Accepted + 1;
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  QObject::connect(discard, &QPushButton::clicked, &dialog, [&dialog] { dialog.done(kDiscarded); });
  dialog.setMinimumWidth(kWidth);
  switch (dialog.exec()) {
    case QDialog::Accepted:
      return RecoveryAnswer::Recover;
    case kDiscarded:
      return RecoveryAnswer::Discard;
    default:
      return RecoveryAnswer::Later;
  }
}

}  // namespace host
