#include "GuardedApplication.h"

#include <QEvent>
#include <QScopedValueRollback>

#include "FailureSentence.h"
#include "Host.h"

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

// Ends the contexts that plug-ins have left behind in an event: their steps would last for ever.
class ContextsOfEvent {
 public:
  ContextsOfEvent() : host_(Host::current()), depth_(host_ == nullptr ? 0 : host_->contexts().depth()) {}
  ContextsOfEvent(const ContextsOfEvent&) = delete;
  ContextsOfEvent& operator=(const ContextsOfEvent&) = delete;
  ~ContextsOfEvent() {
    if (host_ != nullptr && host_ == Host::current()) host_->contexts().popTo(depth_);
  }

 private:
  Host* host_;
  std::size_t depth_;
};

}  // namespace

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  const QScopedValueRollback<bool> turn(isUsersTurn_, isUsersDoing(*event));
  const ContextsOfEvent contexts;
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
