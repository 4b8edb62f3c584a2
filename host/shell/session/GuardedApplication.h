// The application, proof against what the event handlers of plug-ins throw.
#pragma once

#include <QApplication>

#include "FailureReports.h"

namespace host {

// An exception that comes out of a handler ends there, is reported to the user, and the event counts as
// handled: the loop that delivered it never sees it. Contexts that plug-ins leave behind end with the event.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;

  // The same report on a failure from elsewhere. One sentence; to be called on any application.
  static void report(const std::string& sentence);

 private:
  FailureReports reports_;
  bool isUsersTurn_ = false;  // the innermost event is something that the user has done
};

}  // namespace host
