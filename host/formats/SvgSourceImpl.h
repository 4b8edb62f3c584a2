// What a source keeps beside its nodes.
#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "StringArena.h"
#include "SvgEncoding.h"
#include "SvgLines.h"
#include "SvgSource.h"

namespace host {

struct SvgSource::Impl {
  struct Binding {  // of a prefix to a namespace, by the start tag of `node`
    NodeIndex node;
    XmlNamespace nameSpace;
    std::string_view prefix;
    std::string_view uri;
  };
  struct TextRun {
    NodeIndex element;
    NodeIndex next;  // the element that begins next in the file, wherever
    std::string_view text;
  };
  struct EntityUse {  // a reference in content, outside any other, that brought in an element
    std::size_t begin;
    std::size_t end;
    std::string_view replacement;
  };

  // The runs of an element with nextFrom <= next < nextTo.
  std::string textOf(NodeIndex element, NodeIndex nextFrom, NodeIndex nextTo) const;
  // The bindings that hold inside an element, from the inside out. `nodes` are the source's.
  std::vector<const Binding*> visibleAt(const std::vector<SvgNode>& nodes, NodeIndex index) const;
  // Of an attribute of this prefix.
  XmlNamespace namespaceOf(const std::vector<SvgNode>& nodes, NodeIndex index, std::string_view prefix) const;

  StringArena arena;
  SvgEncoding encoding;
  bool plainElementsAreSvg = false;   // the root element is in no namespace
  std::vector<Binding> bindings;      // in order of nodes
  std::vector<TextRun> texts;         // in order of elements, then as in the file
  std::vector<EntityUse> entityUses;  // in order
  std::unordered_map<std::string_view, NodeIndex> ids;
  std::unique_ptr<SvgLines> lines;  // made when first asked for
};

}  // namespace host
