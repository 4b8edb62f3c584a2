// Tells the dialog of the user's action once Qt is done with the event that brought it about.
#pragma once

#include <QPointer>
#include <QWidget>

#include "FlagOfObject.h"
#include "RVADM_Dialog.h"
#include "RVADM_Item.h"

namespace qRVADM {

// For items whose Qt class goes on working after its signal, so that a handler that deletes the item or
// throws would pull the widget from under it. A member of the item, which routes its event function and its
// Notify through it.
class NoticeAfterEvent {
 public:
  // Is this a notice to be kept until the event is over?
  bool Keeps(int code) {
    if (!handling || code != kUserChanged) return false;
    kept = true;
    return true;
  }

  // `handle` is the widget's own handling. The item may be gone when this returns.
  template <typename Handle>
  bool After(RVADM_Item& item, Handle handle) {
    if (handling) return handle();
    const QPointer<QWidget> alive(item.GetWidget());
    const bool handled = HandleWhileKeeping(item, handle);
    if (alive && kept) item.GetDialog()->CallHandler(&RVADM_Dialog::OnItemNotify, &item);
    return handled;
  }

 private:
  template <typename Handle>
  bool HandleWhileKeeping(RVADM_Item& item, Handle handle) {
    kept = false;
    const FlagOfObject flag(item.GetWidget(), handling, true);
    return handle();
  }

  bool handling = false;
  bool kept = false;
};

}  // namespace qRVADM
