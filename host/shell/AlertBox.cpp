#include "AlertBox.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>
#include <QWidget>

#include "ProgramName.h"

namespace host {
namespace {

constexpr int kWidth = 500;  // pixels of the interface; about what the box breaks lines at
constexpr int kLinesInShort = 6;

int availableHeight(const QWidget* parent) {
  const QScreen* screen = parent != nullptr ? parent->screen() : QGuiApplication::primaryScreen();
  return screen->availableGeometry().height();
}

int heightOf(const QString& text, const QFontMetrics& metrics) {
  return metrics.boundingRect(QRect(0, 0, kWidth, 0), Qt::TextWordWrap, text).height();
}

// As many characters from the beginning on as fill that many lines.
QString beginning(const QString& text, const QFontMetrics& metrics, int lines) {
  int fits = 0;
  for (int more = text.size(); more > 0; more /= 2) {
    while (fits + more <= text.size() &&
           heightOf(text.left(fits + more), metrics) <= lines * metrics.height()) {
      fits += more;
    }
  }
  if (fits > 0 && text[fits - 1].isHighSurrogate()) --fits;
  return text.left(fits).trimmed() + "\u2026";
}

// A box does not scroll. What would make it higher than the screen goes into a part of it that does.
void setText(QMessageBox& box, const QString& text, const QWidget* parent) {
  box.ensurePolished();
  const QFontMetrics metrics = box.fontMetrics();
  const bool isTooLong = heightOf(text, metrics) > availableHeight(parent) / 2;
  box.setText(isTooLong ? beginning(text, metrics, kLinesInShort) : text);
  if (isTooLong) box.setDetailedText(text);
}

}  // namespace

void showAlertBox(const Alert& alert, QWidget* parent) {
  const bool isError = alert.kind == AlertKind::Error;
  QMessageBox box(isError ? QMessageBox::Critical : QMessageBox::Information, QString(kProgramName),
                  QString(), QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.setDefaultButton(QMessageBox::Ok);
  box.setEscapeButton(QMessageBox::Ok);
  setText(box, QString::fromStdString(alert.text), parent);
  box.exec();
}

}  // namespace host
