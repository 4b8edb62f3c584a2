// The size of a drawing and its artboards.
#pragma once

#include <variant>
#include <vector>

#include "AIDocument.h"
#include "DocumentState.h"
#include "SvgRemarks.h"
#include "SvgSource.h"

namespace host {

struct SvgPage {
  double scale = 1;  // points in a document unit
  AIRulerUnits rulerUnits = kPointRuler;
  AIRealMatrix documentFromRoot{};
  AIRealMatrix documentFromPixels{};  // the page's CSS pixels, y down
  double innerWidth = 0;              // what percentages in the root's user space refer to
  double innerHeight = 0;
  std::vector<Artboard> artboards;  // never empty
};

// What was assumed where the file leaves a choice is remarked. An error for a size that can't be worked
// with: not above 0, or longer than kMaxPagePoints.
std::variant<SvgPage, SvgError> readPage(const SvgSource& source, SvgRemarks& remarks);

constexpr double kMaxPagePoints = 1e6;

}  // namespace host
