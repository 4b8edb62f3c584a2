#include "DockPanelView.h"

#include <cmath>

namespace host {

// Whatever called the plug-in may still be at work in the widgets.
DockPanelView::~DockPanelView() {
  if (dock_ != nullptr) {
    if (onEnd) onEnd(*dock_);
    dock_->panelGone();
  }
  if (panel_.callsUnderWay > 0 && view_ != nullptr) {
    view_->deleteLater();
  } else {
    delete view_;
  }
}

void DockPanelView::show(bool show) {
  if (dock_ != nullptr) dock_->setShown(show);
}

AISize DockPanelView::size() const {
  if (view_ == nullptr) return {0, 0};
  return {static_cast<AIReal>(view_->width()), static_cast<AIReal>(view_->height())};
}

void DockPanelView::setSize(AISize size) {
  if (dock_ == nullptr) return;
  dock_->setViewSize({static_cast<int>(std::lround(size.width)), static_cast<int>(std::lround(size.height))});
}

void DockPanelView::move(std::int32_t x, std::int32_t y) {
  if (dock_ != nullptr) dock_->moveTo({x, y});
}

void DockPanelView::recordChanged() {
  if (dock_ != nullptr) dock_->refresh();
}

}  // namespace host
