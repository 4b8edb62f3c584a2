// The operators of a content stream, one after the other (ISO 32000-1, 7.8.2).
#pragma once

#include <string_view>
#include <vector>

namespace host {

class PdfContentReader {
 public:
  // The content must outlive this; so must what op() and name() are kept for.
  explicit PdfContentReader(std::string_view content) : rest_(content) {}

  // Goes to the next operator; false at the end. What is no content is skipped.
  bool next();

  std::string_view op() const { return op_; }
  // An operand of the operator; 0 or empty if there is none of that kind at the place.
  double number(std::size_t index) const { return index < operands_.size() ? operands_[index].number : 0; }
  std::string_view name(std::size_t index) const {  // with its slash, as written
    return index < operands_.size() ? operands_[index].name : std::string_view();
  }

 private:
  struct Operand {
    double number = 0;
    std::string_view name;
  };

  void skipBlanks();
  std::string_view takeRegular(std::size_t from);
  void readNumber();
  void readDelimited();
  void skipString();
  void skipInlineImage();

  std::string_view rest_;
  std::string_view op_;
  std::vector<Operand> operands_;
  int depth_ = 0;  // of arrays and dictionaries, which count as one operand each
};

}  // namespace host
