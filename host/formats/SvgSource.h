// The bytes of a drawing and the tree of its elements, each of which knows where it stands.
//
// The bytes are kept as they came, and a save is these bytes with edits spliced in, so what nobody
// touched is written back byte for byte. The tree holds elements and their attributes only; everything
// else of the file (comments, entities, processing instructions, blanks) is reached through the bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace host {

using NodeIndex = std::uint32_t;  // 0 names no element; the root element is 1; children come after parents

// Namespaces that are told apart; an element or attribute of any other is Other.
enum class XmlNamespace : std::uint8_t {
  None,  // attributes without a prefix; also elements without one where no default namespace holds
  Svg,
  XLink,
  Xml,
  Inkscape,
  Sodipodi,
  Host,  // kHostNamespace: what this host writes for itself
  Other
};

constexpr char kHostNamespace[] = "urn:x-corvane-host:drawing:1";

// What a namespace is called in files; empty for None and Other.
std::string_view namespaceUri(XmlNamespace nameSpace);

struct XmlAttribute {
  XmlNamespace nameSpace;
  std::string_view name;   // local name
  std::string_view value;  // UTF-8, entities expanded; lives as long as the source
};

struct SvgNode {
  NodeIndex parent = 0;
  NodeIndex firstChild = 0;
  NodeIndex nextSibling = 0;
  XmlNamespace nameSpace = XmlNamespace::None;
  bool editable = true;  // false: it came out of an entity, so it has no bytes of its own
  std::uint32_t firstAttribute = 0;
  std::uint32_t attributeCount = 0;
  std::string_view name;  // local name
  // Offsets into the bytes: "<", behind the ">" of the start tag, "<" of the end tag, behind the element.
  // An empty-element tag has tagEnd == closeBegin == end. All 0 unless editable.
  std::size_t begin = 0;
  std::size_t tagEnd = 0;
  std::size_t closeBegin = 0;
  std::size_t end = 0;
};

struct SvgPosition {
  std::size_t line = 0;    // from 1
  std::size_t column = 0;  // from 1, in bytes; in UTF-16 in units of two bytes
};

// Why a file is no drawing. `position` is set where the fault has a place.
struct SvgError {
  std::string reason;  // a clause without a full stop, such as "mismatched tag"
  std::optional<SvgPosition> position;
};

// Replaces the bytes [begin, end) by `text`, which is UTF-8 and is written in the file's own encoding;
// begin == end inserts. Characters that the encoding lacks become character references.
struct SvgEdit {
  std::size_t begin;
  std::size_t end;
  std::string text;
};

class SvgSource {
 public:
  // Elements may nest this deep.
  static constexpr std::size_t kMaxDepth = 1024;
  // Files are smaller than this.
  static constexpr std::size_t kSizeLimit = std::size_t{1} << 32;

  // Encodings: UTF-8, UTF-16, ISO-8859-x, US-ASCII, windows-125x; which one is told by the XML declaration
  // and the byte order mark. The root element must be <svg>, in the SVG namespace or in none. Entities that
  // the file declares itself are expanded; nothing outside the file is ever loaded.
  static std::variant<std::unique_ptr<SvgSource>, SvgError> parse(std::string bytes);

  SvgSource(const SvgSource&) = delete;
  SvgSource& operator=(const SvgSource&) = delete;
  ~SvgSource();

  const std::string& bytes() const { return bytes_; }
  NodeIndex root() const { return 1; }
  std::size_t nodeCount() const { return nodes_.size() - 1; }
  const SvgNode& node(NodeIndex index) const { return nodes_[index]; }

  // Is it an SVG element of this local name?
  bool is(NodeIndex index, std::string_view localName) const;
  // Is it an SVG element at all (not one of an unknown namespace)?
  bool isSvg(NodeIndex index) const;

  // In document order, those that the DOCTYPE supplies last; declarations of namespaces are not among them.
  const XmlAttribute* attributesBegin(NodeIndex index) const;
  const XmlAttribute* attributesEnd(NodeIndex index) const;
  // Nullopt if the element has no such attribute.
  std::optional<std::string_view> attribute(NodeIndex index, XmlNamespace nameSpace,
                                            std::string_view name) const;
  std::optional<std::string_view> attribute(NodeIndex index, std::string_view name) const {
    return attribute(index, XmlNamespace::None, name);
  }
  // `href`, or `xlink:href` where there is none.
  std::optional<std::string_view> href(NodeIndex index) const;
  // 0 if no element has this id; the first one if several have.
  NodeIndex byId(std::string_view id) const;

  // All character data directly inside an SVG element, in order, entities and CDATA resolved. A stretch of
  // nothing but blanks counts only inside <text>. Empty for elements that are not SVG.
  std::string text(NodeIndex index) const;
  // The part of it that stands before `child` and behind the child before that; child 0: behind the last
  // child.
  std::string textBefore(NodeIndex index, NodeIndex child) const;

  SvgPosition positionOf(std::size_t offset) const;
  // The bytes [begin, end) as UTF-8, nothing expanded.
  std::string utf8(std::size_t begin, std::size_t end) const;
  // The code unit at `offset` (a byte, or two in UTF-16); 0 behind the end.
  char16_t unitAt(std::size_t offset) const;
  std::size_t unitSize() const;  // 1, or 2 in UTF-16

  // Where an attribute stands in the bytes.
  struct ValueRange {
    std::size_t begin;  // between the quotes
    std::size_t end;
    char quote;
    std::size_t outerBegin;  // the blanks before its name
    std::size_t outerEnd;    // behind the closing quote
  };
  // Nullopt for an element that is not editable or whose start tag has no such attribute (the DOCTYPE may
  // supply it all the same).
  std::optional<ValueRange> rawAttribute(NodeIndex index, XmlNamespace nameSpace,
                                         std::string_view localName) const;
  // The same by the name as written, with its prefix.
  std::optional<ValueRange> rawAttribute(NodeIndex index, std::string_view qualifiedName) const;
  // Where an editable element takes another attribute: behind its last one, before blanks and "/" or ">".
  std::size_t attributeInsertion(NodeIndex index) const;
  // The bytes of an editable element's name in its start tag.
  std::pair<std::size_t, std::size_t> rawName(NodeIndex index) const;

  // A prefix bound to a namespace at this element; nullopt if there is none. For elements "" is the
  // default one, and preferred; attributes need a prefix that is not empty.
  std::optional<std::string> prefixFor(NodeIndex index, XmlNamespace nameSpace,
                                       bool forAttribute = false) const;
  // Does any element of the file bind this prefix to anything else than that namespace?
  bool bindsElsewise(std::string_view prefix, XmlNamespace nameSpace) const;
  // Does this very element bind it?
  bool bindsPrefix(NodeIndex index, std::string_view prefix) const;
  // The prefixes bound at this element and what to, inner bindings first and outer ones of the same prefix
  // left out.
  std::vector<std::pair<std::string_view, std::string_view>> bindingsAt(NodeIndex index) const;

  // The same drawing with every entity that holds elements written out in its place, so that all elements
  // are editable. Nodes and their indexes are the same.
  std::unique_ptr<SvgSource> withEntitiesExpanded() const;

  // The bytes with the edits done. They must not overlap; several inserts at one place keep their order.
  std::string splice(std::vector<SvgEdit> edits) const;

 private:
  friend class SvgParser;
  struct Impl;
  SvgSource();

  std::string bytes_;
  std::vector<SvgNode> nodes_;  // [0] is unused
  std::vector<XmlAttribute> attributes_;
  std::unique_ptr<Impl> impl_;
};

}  // namespace host
