// How a plug-in reaches its panel in the window.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "PanelTable.h"
#include "PluginDock.h"

namespace host {

// Outlives its dock if the window goes first; the panel is then as if hidden.
class DockPanelView : public PanelView {
 public:
  // `view` is what the panel's content stands in. `dock` is deleted with this, or with its window.
  DockPanelView(const PanelRecord& panel, QWidget& view, PluginDock& dock)
      : panel_(panel), view_(&view), dock_(&dock) {}
  ~DockPanelView() override;

  NativeView* view() override { return NativeViewOf(view_); }
  void show(bool show) override;
  bool isShown() const override { return dock_ != nullptr && dock_->isShown(); }
  AISize size() const override;
  void setSize(AISize size) override;
  void move(std::int32_t x, std::int32_t y) override;
  void recordChanged() override;

  // Called when the panel is about to go.
  std::function<void(PluginDock&)> onEnd;

 private:
  const PanelRecord& panel_;
  QPointer<QWidget> view_;
  QPointer<PluginDock> dock_;
};

}  // namespace host
