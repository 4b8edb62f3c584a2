// Graphics states: overprint and opacity.
#pragma once

#include <map>
#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <tuple>

namespace host {

struct PdfState {
  bool overprintsStroke = false;
  bool overprintsFill = false;
  double strokeOpacity = 1;
  double fillOpacity = 1;

  bool operator<(const PdfState& other) const { return key() < other.key(); }
  bool operator==(const PdfState& other) const { return key() == other.key(); }

 private:
  std::tuple<bool, bool, double, double> key() const {
    return {overprintsStroke, overprintsFill, strokeOpacity, fillOpacity};
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
