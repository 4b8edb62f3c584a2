#include "RVADM_Frame.h"

#include <QChildEvent>

#include "DrawnBox.h"

namespace qRVADM {
namespace {

QFrame::Shape ShapeOf(bool bordered, const ADMRect& bounds) {
  constexpr int kBoxSize = 3;
  if (!bordered) return QFrame::NoFrame;
  if (Height(bounds) < kBoxSize) return QFrame::HLine;
  return Width(bounds) < kBoxSize ? QFrame::VLine : QFrame::Box;
}

}  // namespace

RVADM_Frame::RVADM_Frame(RVADM_ItemParent* itemParent, bool isBordered)
    : RVADM_QMetaObjectProxy(itemParent, kFrameKind), bordered(isBordered) {
  ensurePolished();
  SetBoxMargins(*this);
  SetSize(GetWidth(), 2);
  LetClicksThrough(*this);
}

void RVADM_Frame::SetBounds(const ADMRect& bounds) {
  setFrameShape(ShapeOf(bordered, bounds));
  RVADM_Item::SetBounds(bounds);
}

void RVADM_Frame::childEvent(QChildEvent* event) {
  TakeClicksOfChild(*this, *event);
  QFrame::childEvent(event);
}

void RVADM_Frame::showEvent(QShowEvent* event) {
  SinkBox(*this);
  QFrame::showEvent(event);
}

}  // namespace qRVADM
