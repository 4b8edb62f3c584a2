#include "SvgRemarks.h"

#include <functional>
#include <utility>

namespace host {
namespace {

// Where the element, or the one round it that stands in the file itself, begins.
std::size_t beginOf(const SvgSource& source, NodeIndex element) {
  while (!source.node(element).editable && source.node(element).parent != 0) {
    element = source.node(element).parent;
  }
  return source.node(element).begin;
}

}  // namespace

void SvgRemarks::add(NodeIndex element, std::string reason) {
  add(element, std::move(reason), beginOf(source_, element));
}

void SvgRemarks::addAt(NodeIndex element, std::string_view name, std::size_t offset, std::string reason) {
  const auto value = source_.attribute(element, name);
  const auto range = source_.rawAttribute(element, XmlNamespace::None, name);
  // With entities in the value its bytes can't be counted in the file.
  const bool plain = value && range && range->end - range->begin == value->size();
  add(element, std::move(reason), plain ? range->begin + offset : beginOf(source_, element));
}

void SvgRemarks::add(NodeIndex element, std::string reason, std::size_t position) {
  if (!given_.insert(std::hash<std::string>()(std::to_string(element) + reason)).second) return;
  if (remarks_.size() == kMaxRemarks) {
    ++leftOut_;
    return;
  }
  remarks_.push_back({std::string(source_.node(element).name),
                      std::string(source_.attribute(element, "id").value_or("")), std::move(reason),
                      source_.positionOf(position)});
}

std::vector<SvgRemark> SvgRemarks::take() {
  if (leftOut_ > 0) {
    const NodeIndex root = source_.root();
    remarks_.push_back({std::string(source_.node(root).name),
                        std::string(source_.attribute(root, "id").value_or("")),
                        "there are " + std::to_string(leftOut_) + " more remarks", source_.positionOf(0)});
    leftOut_ = 0;
  }
  return std::move(remarks_);
}

}  // namespace host
