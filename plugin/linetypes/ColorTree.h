// Paints in a tree: "kind", and the components under "gray", "cmyk" or "rgb".
#pragma once

#include "AIColor.h"
#include "LineTypeTree.h"

namespace Vandrell::Corvane {

// Both throw a boost::property_tree::ptree_error, or a derivative of it, and nothing else but for want of
// memory.

// Fills an empty tree; what is in it after a throw is of no use. A custom colour is written as its
// definition under "custom", which ColorFromTree does not take. "can't get custom color" if the host
// refuses that one, "color type not supported" for gradients, patterns and unknown kinds.
void ColorToTree(LineTypeTree& tree, const AIColor& color);

// Fills a zeroed record, which a throw leaves alone. Components may be any finite numbers. Texts: "invalid
// color" for too few components and for kinds other than gray, CMYK, RGB and none, or the tree's own for a
// key that is missing and for text that is not a number of its type.
void ColorFromTree(const LineTypeTree& tree, AIColor& color);

}  // namespace Vandrell::Corvane
