// A widget that keeps account of buttons and modifier keys.
#pragma once

#include <QWidget>
#include <cstdint>

namespace qRVADM {

// Every event is noted, then handed to the operation of its name, then to the widget's own handling, unless
// the operation deleted the object. Instance: QWidget.
template <typename Widget>
class InputStateManaged : public Widget {
 public:
  explicit InputStateManaged(QWidget* parent) : Widget(parent) {}

  virtual void OnMouseDoubleClick(QMouseEvent* event);
  virtual void OnMousePress(QMouseEvent* event);
  virtual void OnMouseRelease(QMouseEvent* event);
  virtual void OnMouseMove(QMouseEvent* event);
  virtual void OnKeyPress(QKeyEvent* event);
  virtual void OnKeyRelease(QKeyEvent* event);
  virtual void OnWheel(QWheelEvent* event);

 protected:
  std::uint32_t InputState() const { return modifiers | buttons | keys; }

  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void NoteMouse(const QMouseEvent& event);
  void NoteKey(const QKeyEvent& event);

  // Bits of TrackerModifier, as of the last event.
  std::uint32_t modifiers = 0;
  std::uint32_t buttons = 0;
  std::uint32_t keys = 0;
};

extern template class InputStateManaged<QWidget>;

}  // namespace qRVADM
