// A button with an icon, and another one for while it is selected.
#pragma once

#include <QToolButton>

#include "NoticeAfterEvent.h"
#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

// Icons follow the host's brightness. Ids are those of Icons.h; 0 or an unknown one leaves the button blank,
// a negative one is a blank picture of 16 by 16 pixels.
class RVADM_PicturePushButton : public RVADM_QMetaObjectProxy<RVADM_Item, QToolButton> {
 public:
  // As large as the style makes a button around the icon. No selected picture: 0.
  RVADM_PicturePushButton(RVADM_ItemParent* itemParent, int iconId, int selectedIconId);

  // The size stays. Takes the selected picture away.
  void SetPicture(int id);
  // Shown while the button is checked; while it is pressed, if it cannot be checked.
  void SetSelectedPicture(int id);
  // From now on only the picture is drawn, without a button around it.
  void SetFlat(bool resizeToIcon);
  void Notify(int code) override;

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowPictures(int id, int selectedId);

  NoticeAfterEvent notice;
  int iconId;
  int selectedIconId = 0;
  bool flat = false;
};

}  // namespace qRVADM
