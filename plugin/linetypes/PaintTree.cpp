#include "PaintTree.h"

#include <boost/property_tree/ptree.hpp>
#include <optional>

#include "TreeNumber.h"

namespace Vandrell::Corvane {
namespace {

using boost::property_tree::ptree_bad_data;
using boost::property_tree::ptree_error;

template <typename Number>
Number Required(const std::optional<Number>& number, const LineTypeTree& node) {
  if (!number) throw ptree_bad_data("not a number of the kind wanted", node.data());
  return *number;
}

}  // namespace

void PutInteger(LineTypeTree& tree, const char* key, std::int32_t value) {
  tree.put(key, TextOfNumber(value));
}

void PutComponents(LineTypeTree& tree, const char* key, std::initializer_list<AIReal> components) {
  LineTypeTree& list = tree.put_child(key, LineTypeTree());
  for (const AIReal component : components) list.push_back({"", LineTypeTree(TextOfNumber(component))});
}

std::int32_t GetInt32(const LineTypeTree& tree, const char* key) {
  const LineTypeTree& node = tree.get_child(key);
  return Required(Int32FromText(node.data()), node);
}

std::int16_t GetInt16(const LineTypeTree& tree, const char* key) {
  const LineTypeTree& node = tree.get_child(key);
  return Required(Int16FromText(node.data()), node);
}

std::array<AIReal, kMaxComponents> GetComponents(const LineTypeTree& tree, const char* key, std::size_t count,
                                                 const char* tooFew) {
  std::array<AIReal, kMaxComponents> components{};
  std::size_t read = 0;
  for (const auto& [ignored, child] : tree.get_child(key)) {
    const AIReal component = Required(DoubleFromText(child.data()), child);
    if (read < count) components[read++] = component;
  }
  if (read < count) throw ptree_error(tooFew);
  return components;
}

}  // namespace Vandrell::Corvane
