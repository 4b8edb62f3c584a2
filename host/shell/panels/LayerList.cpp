#include "LayerList.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <utility>

#include "LayerDelegate.h"

namespace host {
namespace {

constexpr int kGapLine = 2;  // pixels

}  // namespace

LayerList::LayerList(QWidget* parent, Commands commands)
    : PanelList("Layers", parent), commands_(std::move(commands)) {
  setItemDelegate(new LayerDelegate(this));
  onEntered = [this](int row) { rename(row); };
}

void LayerList::rename(int row) {
  edit(model()->index(row, 0));
}

void LayerList::keyPressEvent(QKeyEvent* event) {
  const int row = currentIndex().row();
  const bool isAlt = event->modifiers() == Qt::AltModifier;
  if (event->key() == Qt::Key_Escape && gap_ >= 0) {
    endDrag();
  } else if (row < 0 || state() == EditingState) {
    PanelList::keyPressEvent(event);
  } else if (event->key() == Qt::Key_F2) {
    rename(row);
  } else if (event->key() == Qt::Key_Space) {
    commands_.toggleVisible(row);
  } else if (isAlt && event->key() == Qt::Key_Up) {
    moveBy(-1);
  } else if (isAlt && event->key() == Qt::Key_Down) {
    moveBy(1);
  } else {
    PanelList::keyPressEvent(event);
  }
}

void LayerList::moveBy(int rows) {
  const int row = currentIndex().row();
  const int place = row + rows;
  if (place >= 0 && place < model()->rowCount()) commands_.move(row, place);
}

void LayerList::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->pos());
  if (event->button() != Qt::LeftButton || !index.isValid()) return PanelList::mousePressEvent(event);
  if (layerZoneAt(visualRect(index), event->pos()) != LayerZone::Title) return pressSign(index, *event);
  pressed_ = index.row();
  pressedAt_ = event->pos();
  PanelList::mousePressEvent(event);
}

void LayerList::pressSign(const QModelIndex& index, const QMouseEvent& event) {
  if (layerZoneAt(visualRect(index), event.pos()) == LayerZone::Lock) {
    commands_.toggleLocked(index.row());
  } else if (event.modifiers().testFlag(Qt::AltModifier)) {
    commands_.toggleOthers(index.row());
  } else {
    commands_.toggleVisible(index.row());
  }
}

// The list's own answer to a drag would be to turn to the rows that it crosses.
void LayerList::mouseMoveEvent(QMouseEvent* event) {
  if (pressed_ < 0 || !event->buttons().testFlag(Qt::LeftButton)) return endDrag();
  const bool isDrag = (event->pos() - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
  if (gap_ < 0 && !isDrag) return;
  const int row = visualRect(model()->index(0, 0)).height();
  if (event->y() < 0) verticalScrollBar()->setValue(verticalScrollBar()->value() - row);
  if (event->y() >= viewport()->height()) verticalScrollBar()->setValue(verticalScrollBar()->value() + row);
  gap_ = gapAt(event->y());
  viewport()->update();
}

void LayerList::mouseReleaseEvent(QMouseEvent* event) {
  const int from = pressed_;
  const int gap = gap_;
  endDrag();
  PanelList::mouseReleaseEvent(event);
  if (gap < 0) return;
  const int place = gap > from ? gap - 1 : gap;
  if (place != from && from < model()->rowCount()) commands_.move(from, place);
}

// A second click on an eye or a lock is one more click.
void LayerList::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->pos());
  const bool isOnSign = index.isValid() && layerZoneAt(visualRect(index), event->pos()) != LayerZone::Title;
  if (isOnSign && event->button() == Qt::LeftButton) return pressSign(index, *event);
  PanelList::mouseDoubleClickEvent(event);
}

int LayerList::gapAt(int y) const {
  const int rows = model()->rowCount();
  for (int row = 0; row < rows; ++row) {
    if (y < visualRect(model()->index(row, 0)).center().y()) return row;
  }
  return rows;
}

void LayerList::endDrag() {
  if (pressed_ < 0) return;
  pressed_ = gap_ = -1;
  viewport()->update();
}

void LayerList::paintEvent(QPaintEvent* event) {
  PanelList::paintEvent(event);
  if (gap_ < 0) return;
  const bool isLast = gap_ == model()->rowCount();
  const QRect row = visualRect(model()->index(isLast ? gap_ - 1 : gap_, 0));
  const int y = isLast ? row.bottom() + 1 - kGapLine : row.top();
  QPainter painter(viewport());
  painter.fillRect(QRect(row.left(), y, row.width(), kGapLine), palette().color(QPalette::Link));
}

}  // namespace host
