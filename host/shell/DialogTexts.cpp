#include "DialogTexts.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QStringList>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <algorithm>
#include <tuple>

namespace host {
namespace {

QString labelText(const QLabel& label) {
  const bool rich = label.textFormat() == Qt::RichText ||
                    (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
  QString text = rich ? QTextDocumentFragment::fromHtml(label.text()).toPlainText() : label.text();
  return label.buddy() == nullptr ? text : text.remove('&');
}

QString textOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return labelText(*label);
  if (const auto* edit = qobject_cast<const QTextEdit*>(&widget)) return edit->toPlainText();
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) return edit->toPlainText();
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) return edit->text();
  return {};
}

bool takesInput(const QWidget& widget) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) return !edit->isReadOnly();
  if (const auto* edit = qobject_cast<const QTextEdit*>(&widget)) return !edit->isReadOnly();
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) return !edit->isReadOnly();
  if (qobject_cast<const QScrollBar*>(&widget) != nullptr) return false;  // moves what it belongs to
  return qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSlider*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QRadioButton*>(&widget) != nullptr;
}

QList<const QWidget*> partsOf(const QWidget& dialog) {
  QList<const QWidget*> parts;
  for (const QWidget* part : dialog.findChildren<QWidget*>()) {
    if (part->window() == &dialog && part->isVisibleTo(&dialog)) parts << part;
  }
  return parts;
}

}  // namespace

QString textsOf(const QWidget& dialog) {
  QList<const QWidget*> parts = partsOf(dialog);
  const auto place = [&dialog](const QWidget* part) {
    const QPoint at = part->mapTo(&dialog, QPoint());
    return std::make_tuple(at.y(), at.x());
  };
  std::stable_sort(parts.begin(), parts.end(),
                   [&](const QWidget* a, const QWidget* b) { return place(a) < place(b); });
  QStringList texts{dialog.windowTitle().trimmed()};
  for (const QWidget* part : parts) texts << textOf(*part).trimmed();
  texts.removeAll(QString());
  return texts.join('\n');
}

bool hasInputFields(const QWidget& dialog) {
  const QList<const QWidget*> parts = partsOf(dialog);
  return std::any_of(parts.begin(), parts.end(), [](const QWidget* part) { return takesInput(*part); });
}

}  // namespace host
