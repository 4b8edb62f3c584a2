// Collects what changes in the start tag of one element of the file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "SvgDeclared.h"
#include "SvgEditPlan.h"
#include "SvgPrefixes.h"

namespace host {

// The element must be editable. What is set stays to be written until write(), which comes once.
class SvgTagEdit {
 public:
  SvgTagEdit(const SvgSource& source, const SvgDeclared& declared, NodeIndex element);

  void set(XmlNamespace nameSpace, std::string_view name, std::string value);
  void set(std::string_view name, std::string value) { set(XmlNamespace::None, name, std::move(value)); }
  void remove(XmlNamespace nameSpace, std::string_view name);
  void remove(std::string_view name) { remove(XmlNamespace::None, name); }
  // A property where it takes effect: in `style` if it stands there, or if a style sheet may set it,
  // else as an attribute if it is one, else in `style` if there is one.
  void setProperty(std::string_view property, std::string value);
  void setInStyle(std::string_view property, std::string_view value);
  void removeProperty(std::string_view property);
  // Binds a prefix at this element.
  void declare(std::string_view prefix, std::string_view uri);
  // Gives an SVG element another local name.
  void rename(std::string_view localName) { localName_ = localName; }

  void write(SvgEditPlan& plan, SvgPrefixes& prefixes);

 private:
  struct Change {
    XmlNamespace nameSpace;
    std::string name;
    std::optional<std::string> value;  // nullopt: to be removed
  };

  std::optional<std::string> current(std::string_view name) const;
  void write(const Change& change, SvgEditPlan& plan, SvgPrefixes& prefixes) const;
  void writeName(SvgEditPlan& plan, const SvgPrefixes& prefixes) const;

  const SvgSource& source_;
  const SvgDeclared& declared_;
  NodeIndex element_;
  std::vector<Change> changes_;
  std::string declarations_;
  std::string localName_;  // empty: as it is
};

}  // namespace host
