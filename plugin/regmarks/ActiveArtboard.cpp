#include "ActiveArtboard.h"

#include "IAIArtboards.h"
#include "ReturnedCode.h"

namespace Vandrell::Corvane {

AIErr GetActiveArtboardRect(AIRealRect& rect) {
  return ReturnedCode([&rect] {
    const ai::ArtboardList artboards;
    return artboards.GetArtboardProperties(artboards.GetActive()).GetPosition(rect);
  });
}

}  // namespace Vandrell::Corvane
