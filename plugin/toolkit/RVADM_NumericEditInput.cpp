// How a field for a number takes keys, focus and wheel.
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <cmath>

#include "FlagOfObject.h"
#include "HandBackKeyboard.h"
#include "ParseDimension.h"
#include "QtManager.h"
#include "RVADM_NumericEdit.h"

namespace qRVADM {
namespace {

bool EndsEditing(int key, bool onPalette) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || (onPalette && key == Qt::Key_Escape);
}

bool AreEqual(Dimension one, Dimension other, int decimals) {
  return one.unit == other.unit && std::abs(one.value - other.value) < 0.5 * std::pow(0.1, decimals);
}

}  // namespace

void RVADM_NumericEdit::keyPressEvent(QKeyEvent* event) {
  if (isReadOnly()) return;
  const int key = event->key();
  const bool onPalette = RVADMQtManager::QtManager::IsOnNonModalDialog(this);
  if (EndsEditing(key, onPalette)) return EndEditing(event, onPalette);
  const FlagOfObject page(this, turnsPage, key == Qt::Key_PageUp || key == Qt::Key_PageDown);
  QAbstractSpinBox::keyPressEvent(event);
}

// In a modal dialog the first Return after a change is for the field, the next one for the default button.
void RVADM_NumericEdit::EndEditing(QKeyEvent* event, bool onPalette) {
  const QSignalBlocker silence(this);
  const Dimension before = controller.GetDimension();
  const Dimension typed = ParseDimension(QAbstractSpinBox::text(), before.unit, 0.0);
  const bool modified = IsModified();
  QAbstractSpinBox::keyPressEvent(event);
  if (onPalette) {
    event->accept();
    HandBackKeyboard();
    clearFocus();  // where there is nobody to take it
  }
  SetModified(modified);
  const bool keptEmpty = IsKeptEmpty();
  if (!keptEmpty) controller.Parse();
  TellDialog();
  if (onPalette) return;
  const bool isNew = keptEmpty ? modified : !AreEqual(typed, before, controller.GetPrecision());
  event->setAccepted(isNew);
}

// A menu over the field leaves everything as it is.
void RVADM_NumericEdit::focusInEvent(QFocusEvent* event) {
  if (event->reason() == Qt::PopupFocusReason) return;
  if (keepEmpty) savedText = QAbstractSpinBox::text();
  QAbstractSpinBox::focusInEvent(event);
  if (IsKeptEmpty()) return SetModified(false);
  const QString before = QAbstractSpinBox::text();
  controller.Parse();
  SetModified(QAbstractSpinBox::text() != before);
}

void RVADM_NumericEdit::focusOutEvent(QFocusEvent* event) {
  if (event->reason() == Qt::PopupFocusReason) return;
  const bool givesWay = keepEmpty && !controller.IsTextValid();
  const bool becomesEmpty = givesWay && savedText.isEmpty();
  if (givesWay && !becomesEmpty) WriteSilently(savedText);
  QAbstractSpinBox::focusOutEvent(event);
  if (event->reason() != Qt::ActiveWindowFocusReason) lineEdit()->setCursorPosition(0);
  if (becomesEmpty) WriteSilently({});
}

// Over a field that the user is not in, the wheel is meant for what lies behind.
void RVADM_NumericEdit::wheelEvent(QWheelEvent* event) {
  if (isReadOnly()) return;
  if (hasFocus() && rect().contains(event->position().toPoint())) {
    QAbstractSpinBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace qRVADM
