// The tree that line type files are read into and written from.
#pragma once

#include <boost/property_tree/ptree_fwd.hpp>

namespace Vandrell::Corvane {

// All data is text. Keys match without regard to case, a lookup finds the first of equal keys, and a key
// path is split at ".". Whoever does more than pass it on includes <boost/property_tree/ptree.hpp>, which
// takes its time to compile and is kept out of headers.
using LineTypeTree = boost::property_tree::iptree;

}  // namespace Vandrell::Corvane
