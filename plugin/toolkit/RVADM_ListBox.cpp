#include "RVADM_ListBox.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <optional>
#include <vector>

#include "AppContext.h"
#include "RVADM_DelayedSelectionModel.h"
#include "RVADM_Dialog.h"
#include "RVADM_ListEntryDelegate.h"
#include "RVADM_NonModalDialog.h"

namespace qRVADM {

using internal::RVADM_DelayedSelectionModel;

RVADM_ListBox::RVADM_ListBox(RVADM_ItemParent* itemParent, bool multi)
    : RVADM_QMetaObjectProxy(itemParent, kListBoxKind), multiSelect(multi) {
  setSelectionMode(multiSelect ? ExtendedSelection : SingleSelection);
  selectionModel()->deleteLater();
  auto* selection = new RVADM_DelayedSelectionModel(this);
  setSelectionModel(selection);
  // Qt links its own selection model with this signal, some versions of it every model; once is enough.
  connect(selection, SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
          SIGNAL(itemSelectionChanged()), Qt::UniqueConnection);
  setItemDelegate(new internal::RVADM_ListEntryDelegate(this));
  SetFontKind(0);
  ensurePolished();
  TakeNoFocusOnPalette();
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  ConnectToDialog(SIGNAL(itemSelectionChanged()), SLOT(OnListBoxChanged()), false);
  ConnectToDialog(SIGNAL(itemSelectionChanged()), SLOT(OnListBoxChangedAsync()), true);
  ConnectToDialog(SIGNAL(itemDoubleClicked(QListWidgetItem*)), SLOT(OnListBoxItemDoubleClicked()), false);
}

RVADM_ListBox::~RVADM_ListBox() {
  RVADM_ListBox::Clear();
}

void RVADM_ListBox::Invalidate() {
  viewport()->update();
}

// --- rows ---

int RVADM_ListBox::GetEntryCount() {
  return count();
}

RVADM_ListEntry* RVADM_ListBox::GetEntry(int index) {
  return dynamic_cast<RVADM_ListEntry*>(item(index));
}

RVADM_ListEntry* RVADM_ListBox::GetEntryForIndex(const QModelIndex& index) {
  return dynamic_cast<RVADM_ListEntry*>(itemFromIndex(index));
}

RVADM_ListEntry* RVADM_ListBox::FindEntry(const char* start) {
  const QList<QListWidgetItem*> found = findItems(QString::fromUtf8(start), Qt::MatchStartsWith);
  return found.isEmpty() ? nullptr : dynamic_cast<RVADM_ListEntry*>(found.first());
}

void RVADM_ListBox::Clear() {
  const QSignalBlocker quiet(this);
  if (RVADM_DelayedSelectionModel* selection = DelayedSelection()) selection->discardPendingCommands();
  while (count() > 0) delete takeItem(0);
}

// --- the selection ---

RVADM_DelayedSelectionModel* RVADM_ListBox::DelayedSelection() const {
  return qobject_cast<RVADM_DelayedSelectionModel*>(selectionModel());
}

void RVADM_ListBox::CommitSelection() {
  if (RVADM_DelayedSelectionModel* selection = DelayedSelection()) selection->commitPendingCommands();
}

RVADM_ListEntry* RVADM_ListBox::GetActiveEntry() {
  CommitSelection();
  if (!selectionModel()->hasSelection()) return nullptr;
  return dynamic_cast<RVADM_ListEntry*>(currentItem());
}

RVADM_ListEntry* RVADM_ListBox::GetSelectedEntry(int n) {
  CommitSelection();
  QModelIndexList selected = selectedIndexes();
  if (n < 0 || n >= selected.size()) return nullptr;
  std::nth_element(selected.begin(), selected.begin() + n, selected.end());
  return GetEntryForIndex(selected[n]);
}

int RVADM_ListBox::GetSelectedCount() {
  CommitSelection();
  return selectedIndexes().size();
}

void RVADM_ListBox::ClearSelection() {
  CommitSelection();
  const QSignalBlocker quiet(this);
  clearSelection();
}

// --- measures ---

int RVADM_ListBox::HeightOfRow() {
  if (rowHeight > 0) return rowHeight;
  return itemDelegate()->sizeHint(viewOptions(), model()->index(0, 0)).height();
}

int RVADM_ListBox::GetHeightForRows(int rows) {
  const QMargins margins = contentsMargins();
  return HeightOfRow() * rows + margins.top() + margins.bottom();
}

void RVADM_ListBox::SetContentWidth(int width) {
  const QMargins margins = contentsMargins();
  const bool scrolls = verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
  const int scrollBar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
  resize(width + margins.left() + margins.right() + scrollBar, height());
}

void RVADM_ListBox::SetRowHeight(int height) {
  rowHeight = height;
  setUniformItemSizes(height >= 1);
  scheduleDelayedItemsLayout();
}

// --- mouse ---

void RVADM_ListBox::mousePressEvent(QMouseEvent* event) {
  if (!multiSelect || DelayedSelection() == nullptr) return QListWidget::mousePressEvent(event);
  const QPointer<QWidget> alive(this);
  CommitSelection();
  if (!alive) return;
  QListWidget::mousePressEvent(event);
  if (!alive) return;
  if (RVADM_DelayedSelectionModel* selection = DelayedSelection()) selection->beginPendingCommands();
}

void RVADM_ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
  if (RVADM_DelayedSelectionModel* selection = DelayedSelection()) selection->discardPendingCommands();
  QListWidget::mouseDoubleClickEvent(event);
}

// Dragging does not sweep a selection.
QItemSelectionModel::SelectionFlags RVADM_ListBox::selectionCommand(const QModelIndex& index,
                                                                    const QEvent* event) const {
  const bool drags = event != nullptr && event->type() == QEvent::MouseMove && dragDropMode() == NoDragDrop;
  return drags ? QItemSelectionModel::NoUpdate : QListWidget::selectionCommand(index, event);
}

bool RVADM_ListBox::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QListWidget::viewportEvent(event);
  const QPoint place = static_cast<QHelpEvent*>(event)->pos();
  const QModelIndex index = indexAt(place);
  if (RVADM_ListEntry* entry = GetEntryForIndex(index)) {
    const QPoint inRow = place - visualRect(index).topLeft();
    ADMTracker tracker;
    tracker.action = kToolTipAction;
    tracker.x = inRow.x();
    tracker.y = inRow.y();
    const QPointer<QWidget> alive(this);
    if (TrackEntry(*entry, tracker) || !alive) return true;
  }
  return QListWidget::viewportEvent(event);
}

bool RVADM_ListBox::TrackEntry(RVADM_ListEntry& entry, ADMTracker tracker) {
  std::optional<AppContext> context;
  if (dynamic_cast<RVADM_NonModalDialog*>(GetDialog()) != nullptr) context.emplace();
  entry.Track(tracker);
  return tracker.IsHandled();
}

// --- double click ---

void RVADM_ListBox::SetDoubleClickItem(RVADM_Item* item) {
  doubleClickItem = item;
  doubleClickWidget = item == nullptr ? nullptr : item->GetWidget();
}

RVADM_Item* RVADM_ListBox::GetDoubleClickItem() const {
  return doubleClickWidget ? doubleClickItem : nullptr;
}

}  // namespace qRVADM
