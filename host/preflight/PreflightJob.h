// What the checks look at: the lines and the marks of a document, found once.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "DrawnArt.h"
#include "JobMarks.h"
#include "LineTypes.h"
#include "Preflight.h"

namespace host {

constexpr double kPointsInMillimetre = 72 / 25.4;

// Ends with the next change of the document.
struct PreflightJob {
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  // A path or compound path that is painted in a line type and shown.
  struct Line {
    ArtId art;
    std::uint32_t firstPath, endPath;  // of drawn.paths
  };
  struct Type {
    LineType is;
    std::string step;         // see ProcessingSteps.h; empty: none is known
    std::vector<Line> lines;  // from the top down
  };

  explicit PreflightJob(const Document& document);

  const Document& document;
  DrawnArt drawn;
  LayerId markLayer;
  std::vector<JobMark> marks;
  std::vector<Type> types;  // in the order of lineTypesOf, without the marks' own

  // Index of the line type that a path or compound path, or a colour, belongs to; kNone.
  std::size_t typeOf(ArtId art) const;
  std::size_t typeOf(const AIColor& color) const;
  // Index of the first artboard that holds the point; kNone.
  std::size_t sheetAt(AIRealPoint point) const;

  double unitsOf(double millimetres) const { return millimetres * kPointsInMillimetre / document.scale(); }
  double millimetresOf(double units) const { return units * document.scale() / kPointsInMillimetre; }
  // "at (12.3, 45.6) mm", as rulers count: from the lower left corner of the first artboard, y up.
  std::string at(AIRealPoint point) const;
  std::string length(double units) const;  // such as "0.35 mm"
};

// Such as "1 path" and "3 paths".
std::string counted(std::size_t count, const std::string& noun);
// The verb that goes with so many.
inline const char* verb(std::size_t count, const char* ofOne, const char* ofMany) {
  return count == 1 ? ofOne : ofMany;
}

}  // namespace host
