#include "PanelList.h"

#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>

namespace host {
namespace {

constexpr int kTextSize = 12;  // pixels, as in the panels' titles
constexpr int kLeastRowHeight = 20;
constexpr int kRoomAroundText = 5;

}  // namespace

int panelRowHeight(const QFont& text) {
  return std::max(kLeastRowHeight, QFontMetrics(text).height() + kRoomAroundText);
}

PanelList::PanelList(const QString& accessibleName, QWidget* parent) : QListView(parent) {
  setAccessibleName(accessibleName);
  setFrameShape(QFrame::NoFrame);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  QFont font = this->font();
  font.setPixelSize(kTextSize);
  setFont(font);
}

void PanelList::turnTo(int row) {
  const QScopedValueRollback quiet(isTurning_, true);
  if (row < 0) {
    clearSelection();
    setCurrentIndex({});
  } else if (currentIndex().row() != row) {
    setCurrentIndex(model()->index(row, 0));
  }
}

void PanelList::standAt(int row) {
  const QScopedValueRollback quiet(isTurning_, true);
  selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::NoUpdate);
}

void PanelList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (!isTurning_ && current.isValid() && onTurned) onTurned(current.row());
}

void PanelList::contextMenuEvent(QContextMenuEvent* event) {
  QPoint place = event->globalPos();
  if (event->reason() != QContextMenuEvent::Mouse && currentIndex().isValid()) {
    place = viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft());
  }
  if (onMenu) onMenu(place);
}

void PanelList::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && state() != EditingState && currentIndex().isValid()) {
    if (onEntered) onEntered(currentIndex().row());
    return event->accept();
  }
  QListView::keyPressEvent(event);
}

void PanelList::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->pos());
  if (event->button() != Qt::LeftButton || !index.isValid()) return;
  if (onEntered && index.flags().testFlag(Qt::ItemIsEnabled)) onEntered(index.row());
}

void PanelList::focusInEvent(QFocusEvent* event) {
  const QScopedValueRollback quiet(isTurning_, true);  // the first row becomes current if none is
  QListView::focusInEvent(event);
  viewport()->update();
}

void PanelList::focusOutEvent(QFocusEvent* event) {
  QListView::focusOutEvent(event);
  viewport()->update();
}

void PanelList::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Link));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

}  // namespace host
