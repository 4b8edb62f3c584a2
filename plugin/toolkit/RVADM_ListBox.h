// A list of rows that draw themselves and see the mouse.
#pragma once

#include <QListWidget>
#include <QPointer>

#include "RVADM_ListBase.h"
#include "RVADM_ListEntry.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

namespace internal {
class RVADM_DelayedSelectionModel;
}

// The dialog hears of a change of the selection twice: at once, while the list is still at work, and from
// the event loop when it is done. Both may delete rows; only the second, or what comes later, may delete the
// list. With several rows selected a click on one of them cuts the selection down only when no double click
// can come any more; all that asks for the selection brings this about at once.
class RVADM_ListBox : public RVADM_QMetaObjectProxy<RVADM_ListBase, QListWidget> {
 public:
  RVADM_ListBox(RVADM_ItemParent* itemParent, bool multiSelect);
  ~RVADM_ListBox() override;

  void Invalidate() override;

  // A row that is no entry counts and gives null.
  int GetEntryCount() override;
  RVADM_ListEntry* GetEntry(int index) override;
  RVADM_ListEntry* FindEntry(const char* start) override;  // whose text begins so, in any case
  RVADM_ListEntry* GetActiveEntry() override;              // the current row, unless nothing is selected
  void Clear() override;
  virtual RVADM_ListEntry* GetEntryForIndex(const QModelIndex& index);
  virtual RVADM_ListEntry* GetSelectedEntry(int n);  // counted from 0, from top to bottom
  virtual int GetHeightForRows(int rows);            // of the whole item, pixels

  int GetSelectedCount();
  void ClearSelection();            // notifies of nothing
  void SetContentWidth(int width);  // pixels that a row is wide beside the scroll bar; resizes the item
  void SetRowHeight(int height);    // of all rows, pixels; 0: each as high as its content
  int GetRowHeight() const { return rowHeight; }

  // The item that a double click on a row notifies; not owned, may be null.
  void SetDoubleClickItem(RVADM_Item* item);
  RVADM_Item* GetDoubleClickItem() const;  // null if it is gone

  // Lets the row see an event, in a context of the plug-in's own if the dialog is a palette. True if the row
  // handled it. The row, and even the list, may be gone then.
  bool TrackEntry(RVADM_ListEntry& entry, ADMTracker tracker);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  internal::RVADM_DelayedSelectionModel* DelayedSelection() const;  // null if another model took its place
  void CommitSelection();
  int HeightOfRow();

  int rowHeight = 0;  // 0 or less: Qt's size hint
  RVADM_Item* doubleClickItem = nullptr;
  QPointer<QWidget> doubleClickWidget;  // null when the item is gone
  bool multiSelect;
};

}  // namespace qRVADM
