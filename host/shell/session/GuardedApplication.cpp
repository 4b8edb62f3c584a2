#include "GuardedApplication.h"

#include <QEvent>
#include <QScopedValueRollback>

#include "FailureSentence.h"

namespace host {
namespace {

bool isUsersDoing(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  const QScopedValueRollback<bool> turn(isUsersTurn_, isUsersDoing(*event));
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    reports_.note(failureSentence(), isUsersTurn_);
  }
  return true;
}

void GuardedApplication::report(const std::string& sentence) {
  if (auto* application = dynamic_cast<GuardedApplication*>(QCoreApplication::instance())) {
    application->reports_.note(sentence, application->isUsersTurn_);
  } else {
    tellOfFailure(sentence);
  }
}

}  // namespace host
