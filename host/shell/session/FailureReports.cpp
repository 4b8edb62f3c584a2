#include "FailureReports.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include "Complain.h"
#include "Host.h"

namespace host {

void tellOfFailure(const std::string& sentence) {
  if (Host* host = Host::current()) {
    host->alert(AlertKind::Error, sentence);
  } else {
    complain(sentence);
  }
}

void FailureReports::note(const std::string& sentence, bool isUsersDoing) {
  if (isTelling_) return;
  const bool isNew = told_.insert(sentence).second;
  if (!isNew && !isUsersDoing) return;
  isTelling_ = true;
  if (QThread::currentThread()->loopLevel() > 0) {
    QTimer::singleShot(0, QCoreApplication::instance(), [this, sentence] { tell(sentence); });
  } else {
    tell(sentence);
  }
}

void FailureReports::tell(const std::string& sentence) {
  tellOfFailure(sentence);
  isTelling_ = false;
}

}  // namespace host
