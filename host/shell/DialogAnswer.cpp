#include "DialogAnswer.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>

#include "DialogTexts.h"
#include "Host.h"

namespace host {
namespace {

constexpr int kMillisecondsBetween = 10;
constexpr int kTriesToAccept = 3;
constexpr int kTriesToCancel = 3;

QPushButton* defaultButtonOf(const QWidget& dialog) {
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
    const bool isThere = button->window() == &dialog && button->isVisible() && button->isEnabled();
    if (isThere && button->isDefault()) return button;
  }
  return nullptr;
}

void pressReturn(QWidget& dialog) {
  const QPointer<QWidget> target = dialog.focusWidget() != nullptr ? dialog.focusWidget() : &dialog;
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent key(type, Qt::Key_Return, Qt::NoModifier, "\r");
    if (target != nullptr) QCoreApplication::sendEvent(target, &key);
  }
}

void accept(QWidget& dialog) {
  if (QPushButton* button = defaultButtonOf(dialog)) {
    button->click();
  } else {
    pressReturn(dialog);
  }
}

void cancel(QWidget& dialog) {
  if (auto* asDialog = qobject_cast<QDialog*>(&dialog)) {
    asDialog->reject();
  } else {
    dialog.close();
  }
}

// Asks none of the dialog's own code.
void end(QWidget& dialog) {
  if (auto* asDialog = qobject_cast<QDialog*>(&dialog)) {
    asDialog->QDialog::done(QDialog::Rejected);
  } else {
    dialog.hide();
  }
}

}  // namespace

DialogAnswer::DialogAnswer(Host& host, QWidget& dialog, QObject* parent)
    : QObject(parent), host_(host), dialog_(&dialog) {
  connect(&timer_, &QTimer::timeout, this, [this] { step(); });
  startAnew();
}

void DialogAnswer::startAnew() {
  tries_ = 0;
  timer_.start(0);
}

void DialogAnswer::step() {
  if (acting_) return;
  if (dialog_ == nullptr || !dialog_->isVisible()) {
    timer_.stop();
    deleteLater();
    return;
  }
  if (QApplication::activeModalWidget() != dialog_) return;
  const QScopedValueRollback<bool> guard(acting_, true);
  timer_.setInterval(kMillisecondsBetween);
  act();
}

void DialogAnswer::act() {
  const int tries = tries_++;
  if (tries == 0) say();
  if (tries == kTriesToAccept) {
    host_.alert(AlertKind::Error, "The dialog \"" + dialog_->windowTitle().trimmed().toStdString() +
                                      "\" stayed open when it was answered, and was cancelled.");
  }
  if (tries < kTriesToAccept) {
    accept(*dialog_);
  } else if (tries < kTriesToAccept + kTriesToCancel) {
    cancel(*dialog_);
  } else {
    end(*dialog_);
  }
}

void DialogAnswer::say() {
  if (hasInputFields(*dialog_)) return;
  const std::string text = textsOf(*dialog_).toStdString();
  if (!text.empty()) host_.alert(AlertKind::Message, text);
}

}  // namespace host
