#include "RVADM_Group.h"

#include <QChildEvent>

#include "ADMDialogMetrics.h"
#include "DrawnBox.h"
#include "RVADM_Dialog.h"

namespace qRVADM {

RVADM_Group::RVADM_Group(RVADM_ItemParent* itemParent, const char* title, bool localize)
    : RVADM_QMetaObjectProxy(itemParent, kFrameKind) {
  ensurePolished();
  SetBoxMargins(*this);
  SetFontKind(0);
  SetText(title, localize, false);
  LetClicksThrough(*this);
  setCheckable(false);
}

void RVADM_Group::GetInnerRect(ADMRect* rect) {
  const ADMDialogMetrics& metrics = GetDialog()->GetMetrics();
  GetBounds(rect);
  rect->left += metrics.groupMargin;
  rect->top += metrics.groupTopMargin;
  rect->right -= metrics.groupMargin;
  rect->bottom -= metrics.groupMargin;
}

void RVADM_Group::SetInnerRect(const ADMRect& rect) {
  const ADMDialogMetrics& metrics = GetDialog()->GetMetrics();
  SetBounds({rect.left - metrics.groupMargin, rect.top - metrics.groupTopMargin,
             rect.right + metrics.groupMargin, rect.bottom + metrics.groupMargin});
}

void RVADM_Group::AlignItemInside(RVADM_Item* item, int flags) {
  ADMRect inner;
  GetInnerRect(&inner);
  item->AlignToRect(inner, flags);
}

void RVADM_Group::FitToItem(RVADM_Item* item, int flags) {
  ADMRect inner;
  ADMRect target;
  GetInnerRect(&inner);
  item->GetBounds(&target);
  SetInnerRect(Placed(inner, target, flags));
}

void RVADM_Group::childEvent(QChildEvent* event) {
  QGroupBox::childEvent(event);
  TakeClicksOfChild(*this, *event);
}

void RVADM_Group::showEvent(QShowEvent* event) {
  SinkBox(*this);
  QGroupBox::showEvent(event);
}

}  // namespace qRVADM
