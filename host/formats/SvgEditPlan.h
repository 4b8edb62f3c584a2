// The edits that turn the file into what is to be saved, with elements that move from place to place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "SvgLayout.h"
#include "SvgPrefixes.h"

namespace host {

// Text to insert, put together from new text and from elements of the file.
class SvgNewContent {
 public:
  void add(std::string_view text);
  void addMoved(NodeIndex element);  // as it stands in the file, with the edits inside it
  void addDeclarations(SvgScope scope);
  void add(const SvgNewContent& content);
  bool empty() const { return pieces_.empty(); }

 private:
  friend class SvgEditPlan;
  struct Piece {
    std::string text;
    NodeIndex moved = 0;
    SvgScope scope = kNoScope;
  };
  std::vector<Piece> pieces_;
};

// Elements and offsets refer to the source. An edit inside an element that is cut counts where the element
// goes, and for nothing if it goes nowhere.
class SvgEditPlan {
 public:
  SvgEditPlan(const SvgSource& source, const SvgLayout& layout) : source_(source), layout_(layout) {}

  void replace(std::size_t begin, std::size_t end, std::string_view text);
  void replace(std::size_t begin, std::size_t end, SvgNewContent content);
  void insert(std::size_t offset, SvgNewContent content);  // several at one place keep their order
  void cut(NodeIndex element);

  // One element with the edits in it, to be inserted by this or another plan of the same file, which then
  // makes its own edits in what moves into it.
  SvgNewContent takeElement(NodeIndex element);
  // The file with all edits done.
  std::string apply(const SvgPrefixes& prefixes);

 private:
  struct Edit {
    std::size_t begin;
    std::size_t end;
    SvgNewContent content;
  };

  void sort();
  std::vector<const Edit*> editsBetween(std::size_t begin, std::size_t end) const;
  std::vector<SvgEdit> resolved(std::size_t begin, std::size_t end, const SvgPrefixes& prefixes) const;
  std::string text(const SvgNewContent& content, const SvgPrefixes& prefixes) const;
  std::string text(NodeIndex moved, const SvgPrefixes& prefixes) const;

  const SvgSource& source_;
  const SvgLayout& layout_;
  std::vector<Edit> edits_;
};

}  // namespace host
