#include "TableHeadStrips.h"

#include <cstdint>

#include "ArtboardRef.h"
#include "Exceptions.h"

namespace Vandrell::Corvane {

std::vector<AIRealRect> TableHeadStrips() {
  std::vector<AIRealRect> strips;
  try {
    for (std::uint32_t index = 0;; ++index) {
      ArtboardRef artboard;
      artboard.SetIndex(index);
      AIRealRect rect{};
      artboard.GetRect(&rect);
      strips.push_back({rect.left - kTableHeadStripWidth, rect.top, rect.left, rect.bottom});
    }
  } catch (const AIPluginWrappers::Exceptions::ParameterError&) {
    return strips;  // behind the last artboard
  }
}

}  // namespace Vandrell::Corvane
