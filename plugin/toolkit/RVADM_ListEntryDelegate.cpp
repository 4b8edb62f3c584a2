#include "RVADM_ListEntryDelegate.h"

#include <QMouseEvent>
#include <QPainter>

#include "AppContext.h"
#include "IADMDrawer.h"
#include "ItemDelegateDefaultPainter.h"
#include "MouseRoute.h"
#include "RVADM_ListBox.h"

namespace qRVADM::internal {
namespace {

// The painter's state, put back at the end.
class PainterState {
 public:
  explicit PainterState(QPainter& saved) : painter(saved) { painter.save(); }
  PainterState(const PainterState&) = delete;
  PainterState& operator=(const PainterState&) = delete;
  ~PainterState() { painter.restore(); }

 private:
  QPainter& painter;
};

// 0 for events that rows do not see.
int ActionOf(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
      return kLeftDownAction;
    case QEvent::MouseButtonRelease:
      return kLeftUpAction;
    case QEvent::MouseButtonDblClick:
      return kDoubleClickAction;
    default:
      return 0;
  }
}

ADMTracker TrackerInRow(const QMouseEvent& event, int action, const QRect& row) {
  const QPoint place = (event.localPos() - row.topLeft()).toPoint();
  ADMTracker tracker;
  tracker.action = action;
  tracker.modifiers = KeyModifiers(event.modifiers()) | ButtonModifiers(event.buttons());
  tracker.x = place.x();
  tracker.y = place.y();
  return tracker;
}

}  // namespace

RVADM_ListEntryDelegate::RVADM_ListEntryDelegate(RVADM_ListBox* listBox)
    : QItemDelegate(listBox), list(listBox) {}

void RVADM_ListEntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
  RVADM_ListEntry* entry = list->GetEntryForIndex(index);
  if (entry == nullptr) return QItemDelegate::paint(painter, option, index);
  const PainterState state(*painter);
  painter->setRenderHint(QPainter::Antialiasing);
  painter->translate(option.rect.topLeft());
  painter->setFont(list->font());
  QStyleOptionViewItem inRow = option;
  inRow.rect.moveTo(0, 0);
  ItemDelegateDefaultPainter<QItemDelegate> ordinary(*this, inRow, index);
  IADMDrawer drawer(list, painter, &ordinary, ToADMRect(inRow.rect));
  const AppContext context;
  entry->Draw(drawer);
}

QSize RVADM_ListEntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QItemDelegate::sizeHint(option, index);
  if (list->GetRowHeight() > 0) size.setHeight(list->GetRowHeight());
  return size;
}

bool RVADM_ListEntryDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                          const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (QItemDelegate::editorEvent(event, model, option, index)) return true;
  const int action = ActionOf(event->type());
  if (action == 0) return false;
  RVADM_ListEntry* entry = list->GetEntryForIndex(index);
  if (entry == nullptr) return false;
  const auto& mouse = *static_cast<QMouseEvent*>(event);
  return list->TrackEntry(*entry, TrackerInRow(mouse, action, list->visualRect(index)));
}

}  // namespace qRVADM::internal
