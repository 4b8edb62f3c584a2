// "Add brevia Register Marks...": the marks of the current document anew.
#pragma once

#include "HMX_AIMenu.h"

namespace Vandrell::Corvane {

class CutOption;
class CutPlugin;

class CorvaneMenu : public HMX_AIMenu {
 public:
  CorvaneMenu(CutPlugin* owner, const char* group);  // enabled while a document is open

  // Always 0: what is amiss is told to the user. The number of marks that found no room also stands in
  // the integer preference "Corvane"/"LastNotPlaced" afterwards, for whoever drives a host without a
  // window.
  AIErr Go(const AIMenuMessage& message) override;

 private:
  void SelectMarkTool(const CutOption& option) const;

  const CutPlugin& cutPlugin;
};

}  // namespace Vandrell::Corvane
