// An item that draws itself and sees its mouse and keys.
#pragma once

#include "InputStateManaged.h"
#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

enum CursorShape : int {
  kSizeHorCursor = -7,
  kClosedHandCursor = -6,
  kPointingHandCursor = -5,
  kArrowCursor = -4,
};

// Draw and Track run in a context of the plug-in's own. Track may delete the item; what it returns does not
// matter here.
class RVADM_CustomItem : public RVADM_QMetaObjectProxy<RVADM_Item, InputStateManaged<QWidget>> {
 public:
  explicit RVADM_CustomItem(RVADM_ItemParent* itemParent);  // takes no focus

  void SetCursorShape(int shape);  // a CursorShape; an upward arrow for any other number

 protected:
  void paintEvent(QPaintEvent* event) override;

 public:
  virtual void DefaultPaint(QPaintEvent* event);  // what DrawDefault of the drawer does: a plain widget's

  void OnMouseDoubleClick(QMouseEvent* event) override;
  void OnMousePress(QMouseEvent* event) override;
  void OnMouseRelease(QMouseEvent* event) override;
  void OnMouseMove(QMouseEvent* event) override;
  void OnKeyPress(QKeyEvent* event) override;
  void OnKeyRelease(QKeyEvent* event) override;
  void OnWheel(QWheelEvent* event) override;

 private:
  void TrackInContext(int action, const QPointF& point, std::uint32_t key = 0);
};

}  // namespace qRVADM
