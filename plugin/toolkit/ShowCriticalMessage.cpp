#include "ShowCriticalMessage.h"

#include "RVADM_CriticalMessageDialog.h"
#include "TextKey.h"

namespace qRVADM {

void ShowCriticalMessage(const char* text) {
  const RVADM_CriticalMessageDialog dialog("", true, text, true, nullptr, TextKey("OK"), true);
}

}  // namespace qRVADM
