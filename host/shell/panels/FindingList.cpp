#include "FindingList.h"

#include <QKeyEvent>

#include "FindingDelegate.h"

namespace host {

FindingList::FindingList(QWidget* parent) : PanelList("Preflight", parent) {
  setUniformItemSizes(false);
  setItemDelegate(new FindingDelegate(this));
}

void FindingList::keyPressEvent(QKeyEvent* event) {
  const bool isForward = event->key() == Qt::Key_Right;
  if (event->key() == Qt::Key_F5) {
    onCheck();
  } else if (isForward || event->key() == Qt::Key_Left) {
    onStep(isForward ? 1 : -1);
  } else {
    return PanelList::keyPressEvent(event);
  }
  event->accept();
}

// On the current row it is a turn to it as well.
void FindingList::mousePressEvent(QMouseEvent* event) {
  const QModelIndex pressed = indexAt(event->pos());
  const bool isCurrent = pressed.isValid() && pressed == currentIndex();
  PanelList::mousePressEvent(event);
  if (isCurrent && event->button() == Qt::LeftButton && onTurned) onTurned(pressed.row());
}

void FindingList::resizeEvent(QResizeEvent* event) {
  PanelList::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) scheduleDelayedItemsLayout();
}

}  // namespace host
