#include "PanelHolder.h"

#include <QResizeEvent>
#include <algorithm>

namespace host {

PanelHolder::PanelHolder(QWidget& view) : view_(&view) {
  view.setParent(this);
  view.resize(0, 0);
  view.move(0, 0);
  view.show();
}

PanelHolder::~PanelHolder() {
  if (view_ != nullptr) view_->setParent(nullptr);
}

void PanelHolder::setLimits(const Limits& limits, bool floats) {
  limits_ = limits;
  floats_ = floats;
  setViewSize(held(viewSize()));
}

QSize PanelHolder::held(QSize size) const {
  return size.expandedTo(limits_.minimum).boundedTo(limits_.maximum);
}

void PanelHolder::setViewSize(QSize size) {
  const bool isNew = view_ != nullptr && size != view_->size();
  if (isNew) view_->resize(size);
  holdRoom();
  updateGeometry();
  if (isNew && onViewResized) onViewResized();
}

QSize PanelHolder::viewSize() const {
  return view_ == nullptr ? QSize(0, 0) : view_->size();
}

void PanelHolder::collapse(bool isCollapsed) {
  isCollapsed_ = isCollapsed;
  if (view_ != nullptr) view_->setVisible(!isCollapsed);
  holdRoom();
  updateGeometry();
}

// A docked panel may stand in a column that is wider than it can be.
void PanelHolder::holdRoom() {
  QSize least = limits_.isResizable ? limits_.minimum : viewSize();
  QSize most = limits_.isResizable ? limits_.maximum : viewSize();
  if (isCollapsed_) {
    least.setHeight(0);
    most.setHeight(0);
  }
  if (!floats_) most.setWidth(QWIDGETSIZE_MAX);
  setMinimumSize(least);
  setMaximumSize(most);
}

QSize PanelHolder::sizeHint() const {
  return isCollapsed_ ? QSize(viewSize().width(), 0) : viewSize();
}

QSize PanelHolder::fitting(QSize room) const {
  if (!limits_.isResizable) return viewSize();
  QSize size = room.boundedTo(limits_.maximum).expandedTo(limits_.minimum);
  const int beyond = size.height() - limits_.minimum.height();
  if (limits_.verticalStep > 1) size.rheight() -= beyond % limits_.verticalStep;
  return size;
}

void PanelHolder::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (isCollapsed_ || view_ == nullptr || fitting(event->size()) == viewSize()) return;
  view_->resize(fitting(event->size()));
  if (onViewResized) onViewResized();
}

}  // namespace host
