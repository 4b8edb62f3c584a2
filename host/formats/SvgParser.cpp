#include "SvgParser.h"

#include <algorithm>

#include "SvgScanner.h"

namespace host {
namespace {

// More elements than this out of entities are an attack; expat itself allows too many for our nodes.
constexpr std::size_t kMaxExpandedElements = 500000;
constexpr std::size_t kPortion = std::size_t{1} << 30;  // expat takes an int

struct KnownNamespace {
  XmlNamespace nameSpace;
  std::string_view uri;
};

constexpr KnownNamespace kKnown[] = {
    {XmlNamespace::Svg, "http://www.w3.org/2000/svg"},
    {XmlNamespace::XLink, "http://www.w3.org/1999/xlink"},
    {XmlNamespace::Xml, "http://www.w3.org/XML/1998/namespace"},
    {XmlNamespace::Inkscape, "http://www.inkscape.org/namespaces/inkscape"},
    {XmlNamespace::Sodipodi, "http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd"},
    {XmlNamespace::Host, kHostNamespace}};

XmlNamespace namespaceFrom(std::string_view uri) {
  if (uri.empty()) return XmlNamespace::None;
  for (const KnownNamespace& known : kKnown) {
    if (known.uri == uri) return known.nameSpace;
  }
  return XmlNamespace::Other;
}

bool isPredefined(std::string_view entity) {
  return entity == "amp" || entity == "lt" || entity == "gt" || entity == "quot" || entity == "apos";
}

std::string quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

}  // namespace

std::string_view namespaceUri(XmlNamespace nameSpace) {
  for (const KnownNamespace& known : kKnown) {
    if (known.nameSpace == nameSpace) return known.uri;
  }
  return {};
}

SvgParser::SvgParser(SvgSource& source)
    : source_(source), impl_(*source.impl_), parser_(XML_ParserCreate(nullptr), XML_ParserFree) {}

std::optional<SvgError> SvgParser::run() {
  if (!parser_) return SvgError{"out of memory", std::nullopt};
  if (const auto wide = SvgEncoding::utf16From(source_.bytes_)) impl_.encoding = *wide;
  source_.nodes_.emplace_back();
  install();
  std::string_view rest = source_.bytes_;
  while (!rest.empty() && !error_) {
    const std::string_view portion = rest.substr(0, kPortion);
    rest.remove_prefix(portion.size());
    const auto status =
        XML_Parse(parser_.get(), portion.data(), static_cast<int>(portion.size()), rest.empty() ? 1 : 0);
    if (status != XML_STATUS_OK && !error_) error_ = expatError();
  }
  if (!error_) finish();
  return error_;
}

void SvgParser::install() {
  XML_Parser parser = parser_.get();
  XML_SetUserData(parser, this);
  XML_SetElementHandler(parser, startElement, endElement);
  XML_SetCharacterDataHandler(parser, characters);
  XML_SetXmlDeclHandler(parser, xmlDeclaration);
  XML_SetEntityDeclHandler(parser, entityDeclaration);
  XML_SetSkippedEntityHandler(parser, skippedEntity);
  XML_SetUnknownEncodingHandler(parser, unknownEncoding, this);
}

void SvgParser::startElement(void* data, const XML_Char* name, const XML_Char** attributes) {
  if (!self(data).error_) self(data).open(name, attributes);
}

void SvgParser::endElement(void* data, const XML_Char*) {
  if (!self(data).error_) self(data).close();
}

void SvgParser::characters(void* data, const XML_Char* text, int length) {
  SvgParser& parser = self(data);
  if (!parser.open_.empty() && parser.open_.back().isSvg) {
    parser.text_.append(text, static_cast<std::size_t>(length));
  }
}

void SvgParser::xmlDeclaration(void* data, const XML_Char*, const XML_Char* encoding, int) {
  if (!encoding) return;
  if (const auto known = SvgEncoding::singleByte(encoding)) self(data).impl_.encoding = *known;
}

void SvgParser::entityDeclaration(void* data, const XML_Char* name, int isParameter, const XML_Char* value,
                                  int length, const XML_Char*, const XML_Char*, const XML_Char*,
                                  const XML_Char*) {
  if (isParameter != 0) return;
  SvgParser& parser = self(data);
  StringArena& arena = parser.impl_.arena;
  const std::string_view text =
      value ? std::string_view(value, static_cast<std::size_t>(length)) : std::string_view();
  parser.entities_.try_emplace(arena.keep(name), arena.keep(text));
}

void SvgParser::skippedEntity(void* data, const XML_Char* name, int isParameter) {
  if (isParameter != 0 || self(data).error_) return;
  self(data).fail("undefined entity " + quoted(name), self(data).offset());
}

int SvgParser::unknownEncoding(void* data, const XML_Char* name, XML_Encoding* info) {
  const auto known = SvgEncoding::singleByte(name);
  if (!known) {
    self(data).unknownEncoding_ = name;
    return XML_STATUS_ERROR;
  }
  std::copy(known->table().begin(), known->table().end(), info->map);
  info->data = nullptr;
  info->convert = nullptr;
  info->release = nullptr;
  return XML_STATUS_OK;
}

void SvgParser::open(const char* qualifiedName, const char** attributes) {
  if (open_.size() >= SvgSource::kMaxDepth) {
    fail("elements are nested more than " + std::to_string(SvgSource::kMaxDepth) + " deep", offset());
    return;
  }
  flushText();
  const auto index = static_cast<NodeIndex>(source_.nodes_.size());
  source_.nodes_.emplace_back();
  link(index);
  OpenElement element{index, 0, scope_.size(), false, false};
  placeStartTag(source_.nodes_[index]);
  readAttributes(index, attributes);
  SvgNode& node = source_.nodes_[index];
  const Name name = nameOf(qualifiedName);
  node.name = name.local;
  node.nameSpace = resolve(name, false);
  if (error_ || (open_.empty() && !acceptRoot(node, qualifiedName))) return;
  element.isSvg = source_.isSvg(index);
  element.keepsBlanks =
      (!open_.empty() && open_.back().keepsBlanks) || (element.isSvg && node.name == "text");
  open_.push_back(element);
}

void SvgParser::link(NodeIndex index) {
  if (open_.empty()) return;
  OpenElement& parent = open_.back();
  source_.nodes_[index].parent = parent.node;
  if (parent.lastChild == 0) {
    source_.nodes_[parent.node].firstChild = index;
  } else {
    source_.nodes_[parent.lastChild].nextSibling = index;
  }
  parent.lastChild = index;
}

void SvgParser::placeStartTag(SvgNode& node) {
  const std::size_t begin = offset();
  // Inside an entity expat names the place of the outermost reference, an "&".
  node.editable = source_.unitAt(begin) == '<';
  if (node.editable) {
    node.begin = begin;
    node.tagEnd = begin + static_cast<std::size_t>(XML_GetCurrentByteCount(parser_.get()));
    return;
  }
  if (++expandedElements_ > kMaxExpandedElements) fail("entities make the drawing too large", begin);
  if (source_.nodes_[node.parent].editable) noteEntityUse(begin);
}

void SvgParser::noteEntityUse(std::size_t begin) {
  auto& uses = impl_.entityUses;
  if (!uses.empty() && uses.back().begin == begin) return;  // another element out of the same reference
  std::size_t end = begin;
  while (source_.unitAt(end) != ';' && source_.unitAt(end) != 0) end += source_.unitSize();
  end += source_.unitSize();
  const std::string reference = source_.utf8(begin, end);
  const auto entity = entities_.find(std::string_view(reference).substr(1, reference.size() - 2));
  if (entity != entities_.end()) uses.push_back({begin, end, entity->second});
}

void SvgParser::readAttributes(NodeIndex index, const char** attributes) {
  for (const char** at = attributes; *at; at += 2) {
    const Name name = nameOf(at[0]);
    if (name.declaresNamespace) declare(index, name, at[1]);
  }
  const SvgNode node = source_.nodes_[index];
  const char** const supplied = attributes + XML_GetSpecifiedAttributeCount(parser_.get());
  std::optional<SvgStartTag> tag;
  if (node.editable) tag.emplace(source_.bytes_, impl_.encoding, node.begin);
  const auto first = static_cast<std::uint32_t>(source_.attributes_.size());
  for (const char** at = attributes; *at; at += 2) {
    const auto raw = tag && at < supplied ? tag->next() : std::nullopt;
    const Name name = nameOf(at[0]);
    if (name.declaresNamespace) continue;
    const std::string_view value = keepValue(at[1], raw);
    source_.attributes_.push_back({resolve(name, true), name.local, value});
    if (name.prefix.empty() && name.local == "id") impl_.ids.try_emplace(value, index);
  }
  source_.nodes_[index].firstAttribute = first;
  source_.nodes_[index].attributeCount = static_cast<std::uint32_t>(source_.attributes_.size()) - first;
}

void SvgParser::declare(NodeIndex index, const Name& name, std::string_view uri) {
  const std::string_view kept = impl_.arena.keep(uri);
  const std::string_view prefix = name.prefix.empty() ? std::string_view() : name.local;
  scope_.push_back({index, namespaceFrom(kept), prefix, kept});
  impl_.bindings.push_back(scope_.back());
}

// Most values stand in the bytes just as they are meant; only the others are copied.
std::string_view SvgParser::keepValue(std::string_view value, std::optional<SvgRawAttribute> raw) {
  if (raw) {
    const auto written =
        std::string_view(source_.bytes_).substr(raw->valueBegin, raw->valueEnd - raw->valueBegin);
    if (written == value) return written;
    checkReferences(*raw);
  }
  return impl_.arena.keep(value);
}

// In a file with an external DTD, which is never loaded, expat drops unknown entities in silence.
void SvgParser::checkReferences(const SvgRawAttribute& raw) {
  const std::string written = source_.utf8(raw.valueBegin, raw.valueEnd);
  for (std::size_t at = written.find('&'); at != std::string::npos; at = written.find('&', at + 1)) {
    const std::size_t end = written.find(';', at);
    const std::string entity = written.substr(at + 1, end - at - 1);
    const bool known = entity[0] == '#' || isPredefined(entity) || entities_.count(entity) > 0;
    if (!known) fail("undefined entity " + quoted(entity), raw.valueBegin + at * source_.unitSize());
  }
}

XmlNamespace SvgParser::resolve(const Name& name, bool isAttribute) {
  if (isAttribute && name.prefix.empty()) return XmlNamespace::None;
  for (auto binding = scope_.rbegin(); binding != scope_.rend(); ++binding) {
    if (binding->prefix == name.prefix) return binding->nameSpace;
  }
  if (name.prefix == "xml") return XmlNamespace::Xml;
  if (!name.prefix.empty()) fail("the prefix " + quoted(name.prefix) + " is not declared", offset());
  return XmlNamespace::None;
}

bool SvgParser::acceptRoot(const SvgNode& node, const char* qualifiedName) {
  const bool isPlain = node.nameSpace == XmlNamespace::None;
  if (node.name == "svg" && (isPlain || node.nameSpace == XmlNamespace::Svg)) {
    impl_.plainElementsAreSvg = isPlain;
    return true;
  }
  const std::string shown = "the root element is <" + std::string(qualifiedName) + ">";
  fail(node.name == "svg" ? shown + " of another namespace than SVG" : shown + ", not <svg>", offset());
  return false;
}

void SvgParser::close() {
  flushText();
  const OpenElement element = open_.back();
  open_.pop_back();
  scope_.resize(element.scopeSize);
  SvgNode& node = source_.nodes_[element.node];
  if (!node.editable) return;
  node.closeBegin = offset();
  node.end = node.closeBegin + static_cast<std::size_t>(XML_GetCurrentByteCount(parser_.get()));
}

void SvgParser::flushText() {
  if (text_.empty()) return;
  const OpenElement& element = open_.back();
  if (element.keepsBlanks || !withoutBlanksAround(text_).empty()) {
    const auto next = static_cast<NodeIndex>(source_.nodes_.size());
    impl_.texts.push_back({element.node, next, impl_.arena.keep(text_)});
  }
  text_.clear();
}

void SvgParser::finish() {
  std::stable_sort(impl_.texts.begin(), impl_.texts.end(),
                   [](const auto& a, const auto& b) { return a.element < b.element; });
  source_.nodes_.shrink_to_fit();
  source_.attributes_.shrink_to_fit();
}

SvgParser::Name SvgParser::nameOf(std::string_view qualified) {
  const auto found = names_.find(qualified);
  if (found != names_.end()) return found->second;
  const std::string_view kept = impl_.arena.keep(qualified);
  const std::size_t colon = kept.find(':');
  Name name{{}, kept, kept == "xmlns"};
  if (colon != std::string_view::npos) {
    name = {kept.substr(0, colon), kept.substr(colon + 1), kept.substr(0, colon) == "xmlns"};
  }
  names_.emplace(kept, name);
  return name;
}

void SvgParser::fail(std::string reason, std::size_t at) {
  if (error_) return;
  error_ = SvgError{std::move(reason), source_.positionOf(at)};
  XML_StopParser(parser_.get(), XML_FALSE);
}

SvgError SvgParser::expatError() {
  const XML_Error code = XML_GetErrorCode(parser_.get());
  if (code == XML_ERROR_UNKNOWN_ENCODING && !unknownEncoding_.empty()) {
    return {"the encoding " + quoted(unknownEncoding_) + " is not known", std::nullopt};
  }
  std::string reason = XML_ErrorString(code);
  const XML_Index index = XML_GetCurrentByteIndex(parser_.get());
  if (index < 0) return {reason, source_.positionOf(source_.bytes_.size())};
  const auto at = static_cast<std::size_t>(index);
  if (code == XML_ERROR_UNDEFINED_ENTITY && source_.unitAt(at) == '&') {
    const std::string shown = source_.utf8(at, at + 64 * source_.unitSize());
    reason += " " + quoted(std::string_view(shown).substr(1, shown.find(';') - 1));
  }
  return {reason, source_.positionOf(at)};
}

}  // namespace host
