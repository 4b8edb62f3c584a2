// A question with three answers, the third of which stands apart.
#pragma once

#include "RVADM_MessageDialog.h"

namespace gallery {

class ThreeAnswers : public qRVADM::RVADM_MessageDialog {
 public:
  ThreeAnswers();
};

}  // namespace gallery
