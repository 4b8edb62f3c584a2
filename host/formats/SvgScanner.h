// A reading position in the value of an attribute or a property.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace host {

inline bool isSvgBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}
inline bool isSvgDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view withoutBlanksAround(std::string_view text);
// ASCII letters only, as CSS keywords want it.
bool equalsIgnoringCase(std::string_view a, std::string_view b);

class SvgScanner {
 public:
  explicit SvgScanner(std::string_view text) : begin_(text.data()), at_(begin_), end_(begin_ + text.size()) {}

  bool atEnd() const { return at_ == end_; }
  char peek() const { return at_ == end_ ? '\0' : *at_; }
  char next() { return *at_++; }  // not at the end
  std::size_t offset() const { return static_cast<std::size_t>(at_ - begin_); }
  std::string_view rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }

  void skipBlanks() {
    while (at_ != end_ && isSvgBlank(*at_)) ++at_;
  }
  // Blanks with at most one comma among them.
  void skipCommaBlanks();
  bool take(char c);
  // A number with optional sign, fraction and exponent; "1." and ".5" are numbers. One too large for a
  // double comes out infinite. Nullopt, and nothing taken, if there is none.
  std::optional<double> number();
  // Letters, digits, '-', '_' and whatever lies beyond ASCII; may be empty.
  std::string_view identifier();
  // Up to the first of `stops`, which is not taken, or the end.
  std::string_view until(std::string_view stops);

 private:
  const char* begin_;
  const char* at_;
  const char* end_;
};

}  // namespace host
