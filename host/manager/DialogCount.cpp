// How many dialogs of plug-ins are up.
#include <QCoreApplication>
#include <QMetaObject>
#include <QObject>
#include <QThread>

#include "QtManager.h"

namespace RVADMQtManager {
namespace {

int openDialogs = 0;
int leavingDialogs = 0;  // gone, but still counted until the event loop has delivered their last events

bool eventLoopRuns() {
  return QCoreApplication::instance() != nullptr && QThread::currentThread()->loopLevel() > 0;
}

void settleOne() {
  if (leavingDialogs == 0) return;
  --leavingDialogs;
  QtManager::DecreaseDialogCount();
}

// A loop that was left before it came round does not keep a dialog counted.
void settleWithoutLoop() {
  if (eventLoopRuns()) return;
  while (leavingDialogs > 0) settleOne();
}

void dialogGone() {
  ++leavingDialogs;
  if (eventLoopRuns()) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), settleOne, Qt::QueuedConnection);
  } else {
    settleWithoutLoop();
  }
}

}  // namespace

void QtManager::IncreaseDialogCount() {
  ++openDialogs;
}

void QtManager::DecreaseDialogCount() {
  if (openDialogs > 0) --openDialogs;
}

void QtManager::DecreaseDialogCountLater(QObject* dialog) {
  if (dialog == nullptr) return dialogGone();
  QObject::connect(dialog, &QObject::destroyed, dialogGone);
}

int QtManager::DialogCount() {
  settleWithoutLoop();
  return openDialogs;
}

}  // namespace RVADMQtManager
