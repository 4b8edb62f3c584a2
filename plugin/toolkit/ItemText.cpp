#include "ItemText.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <algorithm>

namespace qRVADM {

QString TextOfWidget(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->text();
  if (const auto* edit = qobject_cast<const QTextEdit*>(&widget)) return edit->toPlainText();
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) return edit->toPlainText();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* list = qobject_cast<const QComboBox*>(&widget)) return list->currentText();
  if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&widget)) return spin->text();
  return {};
}

bool SetTextOfWidget(QWidget& widget, const QString& text) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->setText(text);
  } else if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    line->setText(text);
  } else if (auto* edit = qobject_cast<QTextEdit*>(&widget)) {
    edit->setPlainText(text);
  } else if (auto* plain = qobject_cast<QPlainTextEdit*>(&widget)) {
    plain->setPlainText(text);
  } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
    group->setTitle(text);
  } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(text);
  } else if (auto* list = qobject_cast<QComboBox*>(&widget)) {
    list->setEditText(text);
  } else {
    return false;
  }
  return true;
}

void CopyUTF16(std::uint16_t* target, const QString& source, std::size_t size) {
  if (size == 0) return;
  std::size_t count = std::min(size - 1, static_cast<std::size_t>(source.size()));
  const bool splits = count > 0 && count < static_cast<std::size_t>(source.size()) &&
                      source[static_cast<int>(count) - 1].isHighSurrogate();
  if (splits) --count;
  std::copy_n(source.utf16(), count, target);
  target[count] = 0;
}

}  // namespace qRVADM
