// Fills a source from its bytes.
#pragma once

#include <expat.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "SvgSourceImpl.h"
#include "SvgStartTag.h"

namespace host {

// Works for one source, once.
class SvgParser {
 public:
  explicit SvgParser(SvgSource& source);
  std::optional<SvgError> run();

 private:
  struct Name {
    std::string_view prefix;
    std::string_view local;
    bool declaresNamespace;  // "xmlns", or with this prefix
  };
  struct OpenElement {
    NodeIndex node;
    NodeIndex lastChild;
    std::size_t scopeSize;  // bindings that hold outside it
    bool isSvg;
    bool keepsBlanks;  // in it or in a <text> round it
  };

  static SvgParser& self(void* data) { return *static_cast<SvgParser*>(data); }
  static void XMLCALL startElement(void* data, const XML_Char* name, const XML_Char** attributes);
  static void XMLCALL endElement(void* data, const XML_Char* name);
  static void XMLCALL characters(void* data, const XML_Char* text, int length);
  static void XMLCALL xmlDeclaration(void* data, const XML_Char* version, const XML_Char* encoding,
                                     int standalone);
  static void XMLCALL entityDeclaration(void* data, const XML_Char* name, int isParameter,
                                        const XML_Char* value, int length, const XML_Char* base,
                                        const XML_Char* systemId, const XML_Char* publicId,
                                        const XML_Char* notation);
  static void XMLCALL skippedEntity(void* data, const XML_Char* name, int isParameter);
  static int XMLCALL unknownEncoding(void* data, const XML_Char* name, XML_Encoding* info);

  void install();
  void open(const char* qualifiedName, const char** attributes);
  void close();
  void link(NodeIndex index);
  void placeStartTag(SvgNode& node);
  void noteEntityUse(std::size_t begin);
  void readAttributes(NodeIndex index, const char** attributes);
  void declare(NodeIndex index, const Name& name, std::string_view uri);
  std::string_view keepValue(std::string_view value, std::optional<SvgRawAttribute> raw);
  void checkReferences(const SvgRawAttribute& raw);
  XmlNamespace resolve(const Name& name, bool isAttribute);
  bool acceptRoot(const SvgNode& node, const char* qualifiedName);
  void flushText();
  void finish();

  Name nameOf(std::string_view qualified);
  std::size_t offset() const { return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_.get())); }
  void fail(std::string reason, std::size_t at);
  SvgError expatError();

  SvgSource& source_;
  SvgSource::Impl& impl_;
  std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser_;
  std::vector<OpenElement> open_;
  std::vector<SvgSource::Impl::Binding> scope_;
  std::unordered_map<std::string_view, Name> names_;
  std::unordered_map<std::string_view, std::string_view> entities_;  // replacement texts
  std::size_t expandedElements_ = 0;
  std::string text_;  // since the last tag
  std::string unknownEncoding_;
  std::optional<SvgError> error_;
};

}  // namespace host
