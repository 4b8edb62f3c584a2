// The styles of a file's elements.
#pragma once

#include "SvgDeclarations.h"
#include "SvgLength.h"
#include "SvgRemarks.h"
#include "SvgSource.h"
#include "SvgStyle.h"
#include "SvgStyleSheet.h"

namespace host {

// Presentation attributes, below style sheets, below `style` attributes; below what is important.
class SvgCascade {
 public:
  // Reads the file's style sheets.
  SvgCascade(const SvgSource& source, SvgRemarks& remarks);

  SvgDeclaredValues declaredFor(NodeIndex element) const;
  // Values that are not understood are remarked and count as not there.
  SvgStyle styleOf(NodeIndex element, const SvgDeclaredValues& declared, const SvgStyle& parent,
                   const SvgMeasure& viewport) const;

 private:
  const SvgSource& source_;
  SvgRemarks& remarks_;
  SvgStyleSheet sheet_;
};

}  // namespace host
