#include "RVADM_Label.h"

#include <QMouseEvent>
#include <QPointer>

#include "MouseRoute.h"

namespace qRVADM {

RVADM_Label::RVADM_Label(RVADM_ItemParent* itemParent, const char* shownText, bool localize)
    : RVADM_QMetaObjectProxy(itemParent, kLabelKind) {
  setAlignment((alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignTop);
  SetFontKind(0);
  SetText(shownText, localize, true);
}

void RVADM_Label::SetWrappedWidth(int width, bool wrap) {
  if (!wrap) {
    SetWidth(width);
    return;
  }
  setWordWrap(true);
  SetSize(width, heightForWidth(width));
}

void RVADM_Label::mousePressEvent(QMouseEvent* event) {
  if (!TrackPress(*this, *event)) return;
  const QPointer<QWidget> alive(this);
  CallDialogSlot("OnLabelClicked");
  if (alive) QLabel::mousePressEvent(event);
}

}  // namespace qRVADM
