// The ordinary look of an item whose drawing can be overridden.
#pragma once

#include "IADMDrawer.h"
#include "PainterPause.h"

class QPaintEvent;

namespace qRVADM {

// For one paint event. `Item` has a DefaultPaint(QPaintEvent*), which makes a painter of its own.
template <typename Item>
class ItemDefaultPainter : public IADMDrawer::DefaultPainter {
 public:
  ItemDefaultPainter(Item& paintedItem, QPaintEvent* paintEvent) : item(paintedItem), event(paintEvent) {}

  void Paint(QPainter* painter) override {
    PainterPause pause(*painter);
    item.DefaultPaint(event);
    pause.Resume();
  }

 private:
  Item& item;
  QPaintEvent* event;
};

}  // namespace qRVADM
