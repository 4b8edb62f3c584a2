#include "JSONText.h"

#include <boost/property_tree/json_parser.hpp>
#include <locale>
#include <sstream>

#include "JSONDepth.h"

namespace Vandrell::Corvane {
namespace {

constexpr std::size_t kMostLevels = 64;  // a definition has seven; the parser recurses

}  // namespace

LineTypeTree TreeFromJSON(const std::string& text) {
  if (JSONDepth(text) > kMostLevels) throw boost::property_tree::ptree_error("nested too deep");
  std::istringstream stream(text);
  LineTypeTree tree;
  boost::property_tree::read_json(stream, tree);
  return tree;
}

std::string JSONFromTree(const LineTypeTree& tree) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  boost::property_tree::write_json(text, tree, true);
  return text.str();
}

}  // namespace Vandrell::Corvane
