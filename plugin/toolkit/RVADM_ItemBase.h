// What items and the containers of items have in common.
#pragma once

class QObject;
class QWidget;

namespace qRVADM {

class RVADM_Dialog;

namespace internal {

// A virtual base, so that what is item and container at once has one of each of these.
class RVADM_ItemBase {
 public:
  RVADM_ItemBase() = default;
  RVADM_ItemBase(const RVADM_ItemBase&) = delete;
  RVADM_ItemBase& operator=(const RVADM_ItemBase&) = delete;
  virtual ~RVADM_ItemBase() = default;

  virtual RVADM_Dialog* GetDialog() = 0;  // never null
  virtual QWidget* GetWidget() = 0;       // of the same object; null before its Qt part stands
  virtual QObject* GetObject();           // what signals connect to: the widget
};

}  // namespace internal
}  // namespace qRVADM
