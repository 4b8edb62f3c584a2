// Holds changes of a list's selection back for as long as a double click can still come.
#pragma once

#include <QItemSelectionModel>
#include <utility>
#include <vector>

class QAbstractItemView;
class QEvent;

namespace qRVADM::internal {

// Within a delay the selection stays as it is, and what is selected meanwhile waits. What waits is lost when
// the model's rows or columns change: it is told in indexes.
class RVADM_DelayedSelectionModel : public QItemSelectionModel {
  Q_OBJECT

 public:
  // Of the model that `view` has now; the view becomes the parent.
  explicit RVADM_DelayedSelectionModel(QAbstractItemView* view);

  using QItemSelectionModel::select;
  void select(const QItemSelection& selection, SelectionFlags flags) override;
  void clear() override;
  void reset() override;

 public Q_SLOTS:
  // Opens a delay of the double-click interval and 25 milliseconds, or starts the one under way anew.
  void beginPendingCommands();
  // These end the delay. A commit tells of all that waited in one signal, in whose handlers this object may
  // be deleted; it tells nothing if the selection comes out as it was.
  void commitPendingCommands();
  void discardPendingCommands();

 protected:
  bool event(QEvent* event) override;

 private:
  using Command = std::pair<QItemSelection, SelectionFlags>;

  std::vector<Command> EndDelay();

  std::vector<Command> pendingCommands;  // filled only while the timer runs
  int timerId = 0;                       // 0: no delay
};

}  // namespace qRVADM::internal
