// Which elements of a file are its layers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "SvgSource.h"

namespace host {

struct SvgLayerPlan {
  std::string title;
  NodeIndex source;              // the layer's element; the root for what lies in no layer's element
  std::vector<NodeIndex> stray;  // the elements of the layer whose source is the root
};

// From the bottom up, never empty. Layers are the top-level groups that say so, or else, where all that is
// drawn lies in top-level groups with names, these. What is left lies in a layer "Layer 1". Groups that this
// host added are layers in any case.
std::vector<SvgLayerPlan> planLayers(const SvgSource& source);

// An id as some programs write it, with `_x0020_` for a blank.
std::string decodedId(std::string_view id);

}  // namespace host
