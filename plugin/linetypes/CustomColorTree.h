// Definitions of custom colours in a tree: "kind", "flag", and the components under "cmyk", "rgb" or "lab".
#pragma once

#include "AIColor.h"
#include "LineTypeTree.h"

namespace Vandrell::Corvane {

// Both throw a boost::property_tree::ptree_error, or a derivative of it, and nothing else but for want of
// memory.

// Fills an empty tree; what is in it after a throw is of no use. "invalid color mode" for an unknown kind.
void CustomColorToTree(LineTypeTree& tree, const AICustomColor& customColor);

// Fills a zeroed record, which a throw leaves alone. Components may be any finite numbers. Texts: "invalid
// color values" for too few components, "invalid color kind", or the tree's own for a key that is missing
// and for text that is not a number of its type.
void CustomColorFromTree(const LineTypeTree& tree, AICustomColor& customColor);

}  // namespace Vandrell::Corvane
