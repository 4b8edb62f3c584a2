// What all parts of the reader share while one file is read.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

#include "Document.h"
#include "SvgCascade.h"
#include "SvgContext.h"
#include "SvgPage.h"
#include "SvgPaints.h"
#include "SvgRemarks.h"
#include "TextOutliner.h"

namespace host {

// How much may be made of what a file only refers to, so that a few lines can't grow without end: what its
// size lets expect, and a good deal more.
class SvgBudget {
 public:
  explicit SvgBudget(const SvgSource& source)
      : elements_(100000 + source.nodeCount()), segments_(4000000 + source.bytes().size() / 8) {}

  bool isSpent() const { return elements_ == 0 || segments_ == 0; }
  // Both are false when the budget is spent.
  bool takeElement() { return !isSpent() && --elements_ > 0; }
  bool takeSegments(std::size_t count) {
    segments_ -= std::min(count, segments_);
    return segments_ > 0;
  }

 private:
  std::size_t elements_;
  std::size_t segments_;
};

struct SvgReading {
  SvgReading(const SvgSource& source, SvgRemarks& remarks, Document& document, const SvgPage& page,
             const TextOutliner* outliner);

  SvgContext rootContext();
  // The context inside an element: its style and its `transform`, but no viewport of its own.
  SvgContext contextInside(NodeIndex element, const SvgContext& outer);
  SvgContext contextInside(NodeIndex element, const SvgDeclaredValues& declared, const SvgContext& outer);
  // The style of an element by those round it in the file, however it is used.
  SvgStyle styleInFile(NodeIndex element);
  // Says what of the element's look doesn't count here: masks, filters, markers.
  void remarkEffects(NodeIndex element, const SvgStyle& style);

  const SvgSource& source;
  SvgRemarks& remarks;
  Document& document;
  const SvgPage& page;
  const TextOutliner* outliner;  // may be null
  SvgCascade cascade;
  SvgPaints paints;
  SvgBudget budget;
};

// Beyond this a coordinate is of no use, in document units.
constexpr double kMaxCoordinate = 1e9;
bool isUsable(const std::vector<PathGeometry>& paths);
std::size_t segmentCount(const std::vector<PathGeometry>& paths);

}  // namespace host
