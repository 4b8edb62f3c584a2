// The outlines of <rect>, <circle>, <ellipse>, <line>, <polyline>, <polygon> and <path>.
#pragma once

#include "SvgDeclarations.h"
#include "SvgLength.h"
#include "SvgOutline.h"
#include "SvgRemarks.h"
#include "SvgSource.h"

namespace host {

struct SvgFault;

// A box given by x, y, width and height.
struct SvgBox {
  AIRealPoint corner;
  AIRealPoint size;  // may be negative or 0
};

// Reads the geometry of one element. Values that are no lengths are remarked and count as not there.
class SvgShapeReader {
 public:
  SvgShapeReader(const SvgSource& source, SvgRemarks& remarks, NodeIndex element,
                 const SvgDeclaredValues& declared, const SvgMeasure& measure)
      : source_(source), remarks_(remarks), element_(element), declared_(declared), measure_(measure) {}

  // Adds to the outline; false, with a remark that says why, if there is nothing to draw.
  bool read(SvgOutline& outline);
  SvgBox box();

 private:
  bool readRect(SvgOutline& outline);
  bool readCircle(SvgOutline& outline);
  bool readEllipse(SvgOutline& outline);
  bool readLine(SvgOutline& outline);
  bool readPolyline(SvgOutline& outline, bool close);
  bool readPath(SvgOutline& outline);
  bool nothing(std::string reason);
  bool positive(std::string_view name, double value);
  double attribute(std::string_view name, SvgAxis axis);
  double property(SvgProperty property, SvgAxis axis);
  // Nullopt for `auto`, what is missing and what is below 0.
  std::optional<double> radius(SvgProperty property, SvgAxis axis);
  std::optional<double> length(std::string_view name, std::string_view text, SvgAxis axis);
  AIRealPoint radii();
  void remarkFault(std::string_view name, std::string_view what, const SvgFault& fault);

  const SvgSource& source_;
  SvgRemarks& remarks_;
  NodeIndex element_;
  const SvgDeclaredValues& declared_;
  SvgMeasure measure_;
};

}  // namespace host
