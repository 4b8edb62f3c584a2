// A row of the palette: one line type.
#pragma once

#include <string>

#include "LineType.h"
#include "RVADM_TabListEntry.h"

namespace Vandrell::Corvane {

class CutLayerList;

class CutLayerEntry : public qRVADM::RVADM_TabListEntry {
 public:
  CutLayerEntry(CutLayerList* owner, const LineType& shown);
  ~CutLayerEntry() override = default;

  void Draw(qRVADM::IADMDrawer& drawer) override;  // a patch of its colour, its name, a line below

  const LineType& GetLineType() const { return lineType; }
  const std::string& GetName() const { return name; }  // UTF-8

 private:
  void DrawPatch(qRVADM::IADMDrawer& drawer, const qRVADM::ADMRect& cell) const;

  const LineType lineType;
  const std::string name;
};

}  // namespace Vandrell::Corvane
