// A horizontal slider over real values.
#pragma once

#include <QSlider>

#include "NoticeAfterEvent.h"
#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

class RVADM_Slider : public RVADM_QMetaObjectProxy<RVADM_Item, QSlider> {
 public:
  // `step` is above 0. With 39 to 255 steps the slider is about as many pixels wide. Notifies while dragged;
  // with `reportValueChanges` also of each value that comes about.
  RVADM_Slider(RVADM_ItemParent* itemParent, bool reportValueChanges, double minimum, double maximum,
               double step);

  double GetValue() const;
  void SetValue(double newValue);  // truncated to whole steps; notifies of nothing

  void Notify(int code) override;

 protected:
  bool event(QEvent* event) override;

 private:
  NoticeAfterEvent notice;
  double scale;  // steps in a value of 1
};

}  // namespace qRVADM
