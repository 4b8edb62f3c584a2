#include "HiddenPanels.h"

#include <QPointer>
#include <QWidget>
#include <cmath>

#include "Host.h"
#include "OffscreenApplication.h"
#include "PanelCalls.h"

namespace host {
namespace {

class HiddenPanelView : public PanelView {
 public:
  HiddenPanelView(Host& host, const PanelRecord& panel) : host_(host), panel_(panel), view_(new QWidget) {
    HiddenPanelView::setSize(panel.minimum);
  }
  ~HiddenPanelView() override {
    if (panel_.callsUnderWay > 0 && view_ != nullptr) {
      view_->deleteLater();
    } else {
      delete view_;
    }
  }

  NativeView* view() override { return NativeViewOf(view_); }
  void show(bool) override {}
  bool isShown() const override { return false; }
  AISize size() const override { return size_; }

  void setSize(AISize size) override {
    const bool isNew = size.width != size_.width || size.height != size_.height;
    size_ = size;
    view_->resize(static_cast<int>(std::lround(size.width)), static_cast<int>(std::lround(size.height)));
    if (isNew) tellOfSize(host_, panel_.handle);
  }

  void move(std::int32_t, std::int32_t) override {}
  void recordChanged() override {
    const AISize held = heldWithin(panel_, size_);
    if (held.width != size_.width || held.height != size_.height) setSize(held);
  }

 private:
  Host& host_;
  const PanelRecord& panel_;
  QPointer<QWidget> view_;
  AISize size_{};
};

}  // namespace

HiddenPanels::HiddenPanels(Host& host) : host_(host) {
  host.panels().views = this;
}

HiddenPanels::~HiddenPanels() {
  host_.panels().views = nullptr;
}

std::unique_ptr<PanelView> HiddenPanels::make(PanelRecord& panel) {
  ensureApplication();
  return std::make_unique<HiddenPanelView>(host_, panel);
}

}  // namespace host
