// How panels come to be seen. The application's user brings the widgets; without one there are no panels.
#pragma once

#include <cstdint>
#include <memory>

#include "AITypes.h"
#include "NativeView.h"

namespace host {

struct PanelRecord;

// Sizes in units of the interface, of the view without title and frame. What it learns of its user it tells
// the plug-in by the functions of PanelCalls.h.
class PanelView {
 public:
  PanelView() = default;
  PanelView(const PanelView&) = delete;
  PanelView& operator=(const PanelView&) = delete;
  virtual ~PanelView() = default;  // may be called from within a call to the plug-in

  virtual NativeView* view() = 0;  // what the plug-in's content stands in
  virtual void show(bool show) = 0;
  virtual bool isShown() const = 0;
  virtual AISize size() const = 0;  // also of a hidden panel
  virtual void setSize(AISize size) = 0;
  virtual void move(std::int32_t x, std::int32_t y) = 0;  // on the screen, y down
  virtual void recordChanged() = 0;                       // title, icons, limits, step or menu
};

class PanelViews {
 public:
  virtual ~PanelViews() = default;
  // Of a hidden panel, which is in the table already. The record outlives its view.
  virtual std::unique_ptr<PanelView> make(PanelRecord& panel) = 0;
};

}  // namespace host
