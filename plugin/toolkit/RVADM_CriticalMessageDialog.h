// Something that went wrong.
#pragma once

#include "RVADM_MessageDialog.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

class RVADM_CriticalMessageDialog : public RVADM_MessageDialog {
  Q_OBJECT

 public:
  // As RVADM_MessageDialog.
  RVADM_CriticalMessageDialog(const char* heading, bool translateHeading, const char* body,
                              bool translateBody, const char* firstButton, const char* secondButton,
                              bool firstIsDefault);

 protected:
  int GetIconId() override;
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
