// What style attributes and style sheets say, property by property.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "SvgProperty.h"

namespace host {

struct SvgDeclaration {
  SvgProperty property;
  bool important;
  std::string_view value;  // a part of the text that was read, without blanks around it
};

// Reads what stands between two braces or in a `style` attribute.
class SvgDeclarationReader {
 public:
  explicit SvgDeclarationReader(std::string_view text) : text_(text) {}
  // Those of unknown properties are left out. Nullopt at the end.
  std::optional<SvgDeclaration> next();

 private:
  std::string_view text_;
  std::size_t at_ = 0;
};

// The winning declaration of each property of one element. Higher weights win; of equals, the later one.
class SvgDeclaredValues {
 public:
  // Shorthands are taken apart.
  void declare(SvgProperty property, std::string_view value, std::uint64_t weight) {
    if (property == SvgProperty::Font || property == SvgProperty::Marker) {
      return declareShorthand(property, value, weight);
    }
    Entry& entry = entries_[indexOf(property)];
    if (weight < entry.weight) return;
    entry = {value, weight};
  }
  // Empty if nothing is declared.
  std::string_view operator[](SvgProperty property) const { return entries_[indexOf(property)].value; }

 private:
  struct Entry {
    std::string_view value;
    std::uint64_t weight = 0;
  };
  void declareShorthand(SvgProperty property, std::string_view value, std::uint64_t weight);

  std::array<Entry, kSvgPropertyCount> entries_{};
};

}  // namespace host
