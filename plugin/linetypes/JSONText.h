// Trees as text in JSON and back.
#pragma once

#include <string>

#include "LineTypeTree.h"

namespace Vandrell::Corvane {

// Throws boost::property_tree::ptree_error for what is no JSON, or one that is nested deeper than any
// definition of line types.
LineTypeTree TreeFromJSON(const std::string& text);

// Indented by four blanks, every value a string, a subtree of empty keys an array. Throws
// boost::property_tree::ptree_error for a tree that is a bare value.
std::string JSONFromTree(const LineTypeTree& tree);

}  // namespace Vandrell::Corvane
