// Graphics states: overprint, opacity and blend mode.
#pragma once

#include <map>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <string_view>
#include <tuple>

namespace host {

struct PdfState {
  bool overprintsStroke = false;
  bool overprintsFill = false;
  double strokeOpacity = 1;
  double fillOpacity = 1;
  std::string_view blendMode;  // as in CSS, of static lifetime; empty: normal

  bool operator<(const PdfState& other) const { return key() < other.key(); }
  bool operator==(const PdfState& other) const { return key() == other.key(); }

 private:
  std::tuple<bool, bool, double, double, std::string_view> key() const {
    return {overprintsStroke, overprintsFill, strokeOpacity, fillOpacity, blendMode};
  }
};

class PdfStates {
 public:
  // The operator that sets the state.
  std::string choose(const PdfState& state);
  // /ExtGState of the resources: all states that were chosen.
  QPDFObjectHandle resources() const;

 private:
  std::map<PdfState, std::size_t> numbers_;
};

}  // namespace host
