#include "RVADM_DelayedSelectionModel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimerEvent>

namespace qRVADM::internal {
namespace {

// Behind the double-click interval, so that a double click at its very end still comes first.
constexpr int kGraceMilliseconds = 25;

}  // namespace

RVADM_DelayedSelectionModel::RVADM_DelayedSelectionModel(QAbstractItemView* view)
    : QItemSelectionModel(view->model(), view) {
  for (const char* change :
       {SIGNAL(modelAboutToBeReset()), SIGNAL(layoutAboutToBeChanged()),
        SIGNAL(rowsAboutToBeInserted(const QModelIndex&, int, int)),
        SIGNAL(rowsAboutToBeMoved(const QModelIndex&, int, int, const QModelIndex&, int)),
        SIGNAL(rowsAboutToBeRemoved(const QModelIndex&, int, int)),
        SIGNAL(columnsAboutToBeInserted(const QModelIndex&, int, int)),
        SIGNAL(columnsAboutToBeMoved(const QModelIndex&, int, int, const QModelIndex&, int)),
        SIGNAL(columnsAboutToBeRemoved(const QModelIndex&, int, int))}) {
    connect(view->model(), change, this, SLOT(discardPendingCommands()));
  }
}

void RVADM_DelayedSelectionModel::select(const QItemSelection& selection, SelectionFlags flags) {
  if (timerId == 0) {
    QItemSelectionModel::select(selection, flags);
  } else {
    pendingCommands.emplace_back(selection, flags);
  }
}

void RVADM_DelayedSelectionModel::clear() {
  discardPendingCommands();
  QItemSelectionModel::clear();
}

void RVADM_DelayedSelectionModel::reset() {
  discardPendingCommands();
  QItemSelectionModel::reset();
}

void RVADM_DelayedSelectionModel::beginPendingCommands() {
  if (timerId != 0) killTimer(timerId);
  timerId = startTimer(QApplication::doubleClickInterval() + kGraceMilliseconds, Qt::CoarseTimer);
}

void RVADM_DelayedSelectionModel::commitPendingCommands() {
  QSignalBlocker quiet(this);
  const QItemSelection before = selection();
  for (const auto& [selected, flags] : EndDelay()) QItemSelectionModel::select(selected, flags);
  const QItemSelection after = selection();
  quiet.unblock();
  emitSelectionChanged(after, before);
}

void RVADM_DelayedSelectionModel::discardPendingCommands() {
  EndDelay();
}

// What waited, in the order in which it came.
std::vector<RVADM_DelayedSelectionModel::Command> RVADM_DelayedSelectionModel::EndDelay() {
  if (timerId != 0) killTimer(timerId);
  timerId = 0;
  return std::exchange(pendingCommands, {});
}

bool RVADM_DelayedSelectionModel::event(QEvent* event) {
  const bool ends = event->type() == QEvent::Timer && timerId != 0 &&
                    static_cast<QTimerEvent*>(event)->timerId() == timerId;
  if (ends) {
    const QPointer<QObject> alive(this);
    commitPendingCommands();
    if (!alive) return true;
  }
  return QItemSelectionModel::event(event);
}

}  // namespace qRVADM::internal
