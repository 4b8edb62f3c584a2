// The side of a source that is turned to its bytes: places, prefixes, splicing.
#include <algorithm>

#include "SvgSourceImpl.h"
#include "SvgStartTag.h"

namespace host {

std::string SvgSource::utf8(std::size_t begin, std::size_t end) const {
  return impl_->encoding.toUtf8(std::string_view(bytes_).substr(begin, end - begin));
}

char16_t SvgSource::unitAt(std::size_t offset) const {
  return impl_->encoding.unitAt(bytes_, offset);
}

std::size_t SvgSource::unitSize() const {
  return impl_->encoding.unitSize();
}

namespace {

// The first attribute of a start tag whose name `isWanted` likes.
template <typename Wanted>
std::optional<SvgSource::ValueRange> firstAttribute(SvgStartTag tag, const SvgSource& source,
                                                    Wanted isWanted) {
  while (const auto raw = tag.next()) {
    if (!isWanted(source.utf8(raw->nameBegin, raw->nameEnd))) continue;
    return SvgSource::ValueRange{raw->valueBegin, raw->valueEnd, raw->quote, raw->outerBegin, raw->outerEnd};
  }
  return std::nullopt;
}

}  // namespace

std::optional<SvgSource::ValueRange> SvgSource::rawAttribute(NodeIndex index, XmlNamespace nameSpace,
                                                             std::string_view localName) const {
  if (!nodes_[index].editable) return std::nullopt;
  const SvgStartTag tag(bytes_, impl_->encoding, nodes_[index].begin);
  return firstAttribute(tag, *this, [&](std::string_view name) {
    const std::size_t colon = name.find(':');
    const std::string_view prefix = name.substr(0, colon == std::string_view::npos ? 0 : colon);
    const std::string_view local = name.substr(colon == std::string_view::npos ? 0 : colon + 1);
    return local == localName && prefix != "xmlns" && impl_->namespaceOf(nodes_, index, prefix) == nameSpace;
  });
}

std::optional<SvgSource::ValueRange> SvgSource::rawAttribute(NodeIndex index,
                                                             std::string_view qualifiedName) const {
  if (!nodes_[index].editable) return std::nullopt;
  const SvgStartTag tag(bytes_, impl_->encoding, nodes_[index].begin);
  return firstAttribute(tag, *this, [=](std::string_view name) { return name == qualifiedName; });
}

XmlNamespace SvgSource::Impl::namespaceOf(const std::vector<SvgNode>& nodes, NodeIndex index,
                                          std::string_view prefix) const {
  if (prefix.empty()) return XmlNamespace::None;
  for (const Binding* const binding : visibleAt(nodes, index)) {
    if (binding->prefix == prefix) return binding->nameSpace;
  }
  return prefix == "xml" ? XmlNamespace::Xml : XmlNamespace::Other;
}

std::size_t SvgSource::attributeInsertion(NodeIndex index) const {
  SvgStartTag tag(bytes_, impl_->encoding, nodes_[index].begin);
  while (tag.next()) continue;
  return tag.end();
}

std::pair<std::size_t, std::size_t> SvgSource::rawName(NodeIndex index) const {
  const SvgStartTag tag(bytes_, impl_->encoding, nodes_[index].begin);
  return {tag.nameBegin(), tag.nameEnd()};
}

std::vector<const SvgSource::Impl::Binding*> SvgSource::Impl::visibleAt(const std::vector<SvgNode>& nodes,
                                                                        NodeIndex index) const {
  std::vector<const Binding*> visible;
  for (; index != 0; index = nodes[index].parent) {
    auto at = std::partition_point(bindings.begin(), bindings.end(),
                                   [index](const Binding& binding) { return binding.node < index; });
    for (; at != bindings.end() && at->node == index; ++at) {
      const bool hidden = std::any_of(visible.begin(), visible.end(),
                                      [&](const Binding* inner) { return inner->prefix == at->prefix; });
      if (!hidden) visible.push_back(&*at);
    }
  }
  return visible;
}

std::optional<std::string> SvgSource::prefixFor(NodeIndex index, XmlNamespace nameSpace,
                                                bool forAttribute) const {
  std::optional<std::string> found;
  for (const Impl::Binding* const binding : impl_->visibleAt(nodes_, index)) {
    if (binding->uri.empty() || binding->uri != namespaceUri(nameSpace)) continue;
    if (binding->prefix.empty() && !forAttribute) return std::string();
    if (!binding->prefix.empty() && !found) found = std::string(binding->prefix);
  }
  return found;
}

bool SvgSource::bindsElsewise(std::string_view prefix, XmlNamespace nameSpace) const {
  return std::any_of(impl_->bindings.begin(), impl_->bindings.end(), [=](const Impl::Binding& binding) {
    return binding.prefix == prefix && binding.uri != namespaceUri(nameSpace);
  });
}

bool SvgSource::bindsPrefix(NodeIndex index, std::string_view prefix) const {
  return std::any_of(impl_->bindings.begin(), impl_->bindings.end(), [=](const Impl::Binding& binding) {
    return binding.node == index && binding.prefix == prefix;
  });
}

std::vector<std::pair<std::string_view, std::string_view>> SvgSource::bindingsAt(NodeIndex index) const {
  std::vector<std::pair<std::string_view, std::string_view>> found;
  for (const Impl::Binding* const binding : impl_->visibleAt(nodes_, index)) {
    found.emplace_back(binding->prefix, binding->uri);
  }
  return found;
}

std::unique_ptr<SvgSource> SvgSource::withEntitiesExpanded() const {
  std::unique_ptr<SvgSource> expanded;
  const SvgSource* current = this;
  do {  // once for each level of entities within entities
    std::vector<SvgEdit> edits;
    for (const Impl::EntityUse& use : current->impl_->entityUses) {
      edits.push_back({use.begin, use.end, std::string(use.replacement)});
    }
    auto parsed = parse(current->splice(std::move(edits)));
    if (!std::holds_alternative<std::unique_ptr<SvgSource>>(parsed)) return nullptr;
    expanded = std::get<std::unique_ptr<SvgSource>>(std::move(parsed));
    current = expanded.get();
  } while (!current->impl_->entityUses.empty());
  return expanded;
}

std::string SvgSource::splice(std::vector<SvgEdit> edits) const {
  std::stable_sort(edits.begin(), edits.end(), [](const SvgEdit& a, const SvgEdit& b) {
    if (a.begin != b.begin) return a.begin < b.begin;
    return a.begin == a.end && b.begin != b.end;  // what is inserted stands before what is replaced
  });
  std::size_t size = bytes_.size();
  for (const SvgEdit& edit : edits) size += edit.text.size() * unitSize();
  std::string result;
  result.reserve(size);
  std::size_t at = 0;
  for (const SvgEdit& edit : edits) {
    result.append(bytes_, at, edit.begin - at);
    result += impl_->encoding.fromUtf8(edit.text);
    at = edit.end;
  }
  result.append(bytes_, at, std::string::npos);
  return result;
}

}  // namespace host
