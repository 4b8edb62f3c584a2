// A line or a paragraph of text, at the top of its bounds.
#pragma once

#include <QLabel>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

// A press on it is the user's action.
class RVADM_Label : public RVADM_QMetaObjectProxy<RVADM_Item, QLabel> {
 public:
  RVADM_Label(RVADM_ItemParent* itemParent, const char* shownText, bool localize);  // UTF-8

  // `wrap`: the text breaks into lines of this width and the label becomes as high as they are.
  void SetWrappedWidth(int width, bool wrap);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace qRVADM
