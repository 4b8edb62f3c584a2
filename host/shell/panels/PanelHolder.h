// The part of a panel below its title, in which the plug-in's view stands.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

namespace host {

// Gives the view as much of itself as the limits allow, from the upper left corner on.
class PanelHolder : public QWidget {
 public:
  struct Limits {
    QSize minimum, maximum;
    bool isResizable = false;  // by the user; if not, the view keeps its size
    int verticalStep = 1;      // of the height, counted from the minimum
  };

  // `view` stays the caller's and has no parent afterwards.
  explicit PanelHolder(QWidget& view);
  ~PanelHolder() override;

  void setLimits(const Limits& limits, bool floats);
  // At once, whatever there is room for.
  void setViewSize(QSize size);
  QSize viewSize() const;
  QSize held(QSize size) const;  // within the limits
  void collapse(bool isCollapsed);
  bool isCollapsed() const { return isCollapsed_; }

  // Called after the view changed its size; may end the holder.
  std::function<void()> onViewResized;

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QSize fitting(QSize room) const;
  void holdRoom();

  QPointer<QWidget> view_;
  Limits limits_;
  bool floats_ = false;
  bool isCollapsed_ = false;
};

}  // namespace host
