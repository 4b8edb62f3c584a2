// A picture, at its own size or shrunk to fit.
#pragma once

#include <QIcon>
#include <QWidget>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

// A press and release on it is the user's action.
class RVADM_PictureLabel : public RVADM_QMetaObjectProxy<RVADM_Item, QWidget> {
  Q_OBJECT
  // For pictures that are no resource, in a label made with id 0: they stay in every brightness.
  Q_PROPERTY(QIcon icon MEMBER icon WRITE ShowIcon)

 public:
  // An id of Icons.h. Without such a picture the label is blank, of size (0, 0).
  RVADM_PictureLabel(RVADM_ItemParent* itemParent, int iconId);

  void SetPicture(int id);  // resizes to the picture
  // The item's ordinary look: the picture in the middle.
  virtual void DefaultPaint(QPaintEvent* event);

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowIcon(const QIcon& shownIcon);

  QIcon icon;
  int iconId = 0;  // 0: the icon is no resource
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
