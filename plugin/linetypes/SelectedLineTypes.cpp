#include "SelectedLineTypes.h"

#include "LineTypeOfArt.h"
#include "SelectionScan.h"

namespace Vandrell::Corvane {

void SelectedLineTypes(std::set<std::string>& names) {
  names.clear();
  SelectionScan scan;
  ScanSelection(scan);
  std::string name;
  for (AIArtHandle art : scan.supported) {
    if (LineTypeNameOfArt(art, name)) names.insert(name);
  }
}

}  // namespace Vandrell::Corvane
