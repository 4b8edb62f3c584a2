// The list of the palette: a row a line type, patches of colour in the first column, names in the second.
#pragma once

#include "RVADM_TabListBox.h"

namespace Vandrell::Corvane {

class CutLayerList : public qRVADM::RVADM_TabListBox {
 public:
  explicit CutLayerList(qRVADM::RVADM_ItemParent* parent);
};

}  // namespace Vandrell::Corvane
