#include "SvgSource.h"

#include <algorithm>
#include <limits>

#include "SvgParser.h"
#include "SvgSourceImpl.h"

namespace host {
namespace {

constexpr NodeIndex kNoNode = std::numeric_limits<NodeIndex>::max();  // behind every node

struct Signature {
  std::string_view bytes;
  const char* reason;
};

constexpr Signature kOtherFormats[] = {{"\x1F\x8B", "the file is compressed; unpack it first"},
                                       {"\x89PNG", "the file is a PNG image, not SVG"},
                                       {"\xFF\xD8\xFF", "the file is a JPEG image, not SVG"},
                                       {"GIF8", "the file is a GIF image, not SVG"},
                                       {"%PDF", "the file is a PDF document, not SVG"},
                                       {"%!PS", "the file is a PostScript document, not SVG"},
                                       {"PK\x03\x04", "the file is a ZIP archive, not SVG"}};

// Why the bytes need not be looked at any closer; empty if they may be a drawing.
std::string refusal(std::string_view bytes) {
  if (bytes.empty()) return "the file is empty";
  if (bytes.size() >= SvgSource::kSizeLimit) return "the file is larger than 4 GB";
  for (const Signature& other : kOtherFormats) {
    if (bytes.substr(0, other.bytes.size()) == other.bytes) return other.reason;
  }
  return {};
}

}  // namespace

SvgSource::SvgSource() : impl_(std::make_unique<Impl>()) {}
SvgSource::~SvgSource() = default;

std::variant<std::unique_ptr<SvgSource>, SvgError> SvgSource::parse(std::string bytes) {
  std::string reason = refusal(bytes);
  if (!reason.empty()) return SvgError{std::move(reason), std::nullopt};
  std::unique_ptr<SvgSource> source(new SvgSource);
  source->bytes_ = std::move(bytes);
  if (auto error = SvgParser(*source).run()) return *std::move(error);
  return source;
}

bool SvgSource::isSvg(NodeIndex index) const {
  const XmlNamespace nameSpace = nodes_[index].nameSpace;
  return nameSpace == XmlNamespace::Svg || (impl_->plainElementsAreSvg && nameSpace == XmlNamespace::None);
}

bool SvgSource::is(NodeIndex index, std::string_view localName) const {
  return nodes_[index].name == localName && isSvg(index);
}

const XmlAttribute* SvgSource::attributesBegin(NodeIndex index) const {
  return attributes_.data() + nodes_[index].firstAttribute;
}

const XmlAttribute* SvgSource::attributesEnd(NodeIndex index) const {
  return attributesBegin(index) + nodes_[index].attributeCount;
}

std::optional<std::string_view> SvgSource::attribute(NodeIndex index, XmlNamespace nameSpace,
                                                     std::string_view name) const {
  const XmlAttribute* const end = attributesEnd(index);
  for (const XmlAttribute* at = attributesBegin(index); at != end; ++at) {
    if (at->nameSpace == nameSpace && at->name == name) return at->value;
  }
  return std::nullopt;
}

std::optional<std::string_view> SvgSource::href(NodeIndex index) const {
  const auto plain = attribute(index, "href");
  return plain ? plain : attribute(index, XmlNamespace::XLink, "href");
}

NodeIndex SvgSource::byId(std::string_view id) const {
  const auto found = impl_->ids.find(id);
  return found == impl_->ids.end() ? 0 : found->second;
}

std::string SvgSource::Impl::textOf(NodeIndex element, NodeIndex nextFrom, NodeIndex nextTo) const {
  const auto firstFrom = [&](NodeIndex next) {
    return std::partition_point(texts.begin(), texts.end(), [element, next](const TextRun& run) {
      return run.element != element ? run.element < element : run.next < next;
    });
  };
  std::string text;
  const auto end = firstFrom(nextTo);
  for (auto run = firstFrom(nextFrom); run != end; ++run) text += run->text;
  return text;
}

std::string SvgSource::text(NodeIndex index) const {
  return impl_->textOf(index, 0, kNoNode);
}

std::string SvgSource::textBefore(NodeIndex index, NodeIndex child) const {
  if (child != 0) return impl_->textOf(index, child, child + 1);
  NodeIndex last = index;
  for (NodeIndex at = nodes_[index].firstChild; at != 0; at = nodes_[at].nextSibling) last = at;
  return impl_->textOf(index, last + 1, kNoNode);
}

SvgPosition SvgSource::positionOf(std::size_t offset) const {
  if (!impl_->lines) impl_->lines = std::make_unique<SvgLines>(bytes_, impl_->encoding);
  return impl_->lines->positionOf(offset);
}

}  // namespace host
