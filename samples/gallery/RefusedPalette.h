// A palette that the host refuses: its panel has the identifier of another one.
#pragma once

#include "RVADM_NonModalDialog.h"

namespace gallery {

class RefusedPalette : public qRVADM::RVADM_NonModalDialog {
 public:
  RefusedPalette();
};

}  // namespace gallery
