#include "RefusedPalette.h"

namespace gallery {

RefusedPalette::RefusedPalette() {
  Create("Gallery Palette", qRVADM::kResizablePanel, false, 0);
}

}  // namespace gallery
