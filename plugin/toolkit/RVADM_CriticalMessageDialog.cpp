#include "RVADM_CriticalMessageDialog.h"

namespace qRVADM {
namespace {

constexpr int kCriticalIcon = 16102;

}  // namespace

RVADM_CriticalMessageDialog::RVADM_CriticalMessageDialog(const char* heading, bool translateHeading,
                                                         const char* body, bool translateBody,
                                                         const char* firstButton, const char* secondButton,
                                                         bool firstIsDefault) {
  Ask(heading, translateHeading, body, translateBody, firstButton, secondButton, firstIsDefault);
}

int RVADM_CriticalMessageDialog::GetIconId() {
  return kCriticalIcon;
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_RVADM_CriticalMessageDialog.cpp"
