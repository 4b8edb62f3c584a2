// One row of a list, as dialogs see it.
#pragma once

#include <cstdint>

namespace qRVADM {

class RVADM_ListEntryBase {
 public:
  RVADM_ListEntryBase() = default;
  RVADM_ListEntryBase(const RVADM_ListEntryBase&) = delete;
  RVADM_ListEntryBase& operator=(const RVADM_ListEntryBase&) = delete;
  virtual ~RVADM_ListEntryBase() = default;  // the row leaves its list; nobody is notified

  virtual void Notify(int code) = 0;  // in the list's name; a NotifyCode

  std::int64_t data = 0;  // the dialog's own
};

}  // namespace qRVADM
