#include "LineOverlaps.h"

#include <algorithm>

#include "LinePieces.h"
#include "PieceIndex.h"
#include "Vector.h"

namespace host {
namespace {

// Of the pieces from `first` to `end`, which are one path.
LineOverlap longestOverlap(const std::vector<LinePiece>& pieces, const std::vector<bool>& doubled,
                           std::size_t first, std::size_t end) {
  LineOverlap best{pieces[first].path, 0, pieces[first].from};
  LineOverlap current = best;
  for (std::size_t i = first; i < end; ++i) {
    if (!doubled[i]) {
      current.length = 0;
      continue;
    }
    if (current.length == 0) current.start = pieces[i].from;
    current.length += length(pieces[i].to - pieces[i].from);
    if (current.length > best.length) best = current;
  }
  return best;
}

}  // namespace

std::vector<LineOverlap> findOverlaps(const std::vector<const PathGeometry*>& paths,
                                      const OverlapLimits& limits) {
  const LinePieces lines = cutIntoPieces(paths, limits);
  const std::vector<bool> doubled = PieceIndex(lines, limits).findDoubled();
  std::vector<LineOverlap> found;
  for (std::size_t first = 0, end = 0; first < lines.pieces.size(); first = end) {
    while (end < lines.pieces.size() && lines.pieces[end].path == lines.pieces[first].path) ++end;
    const LineOverlap overlap = longestOverlap(lines.pieces, doubled, first, end);
    const double enough = std::min(limits.least, 0.9 * lines.courses[overlap.path].length);
    if (overlap.length > 0 && overlap.length >= enough) found.push_back(overlap);
  }
  return found;
}

}  // namespace host
