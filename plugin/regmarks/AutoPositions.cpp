#include "AutoPositions.h"

#include <algorithm>

#include "AIDocument.h"
#include "ArtBounds.h"
#include "AutoGridArea.h"
#include "CurrentDocument.h"
#include "FitViewToArt.h"
#include "HexGrid.h"
#include "MarkSquare.h"
#include "ProbeArea.h"
#include "ReturnedCode.h"
#include "SectorPicking.h"
#include "Thinning.h"

namespace Vandrell::Corvane {
namespace {

constexpr double kLeastDistance = 144.0;  // points: 2 inches
constexpr std::size_t kFewestToSpread = 4;

AIErr ReadPage(PageGeometry& page) {
  AIDocumentSetup setup{};
  if (const AIErr error = sAIDocument->GetDocumentSetup(&setup)) return error;
  page.width = setup.width;
  page.height = setup.height;
  return sAIDocument->GetDocumentOrigin(&page.origin);
}

// Most cells on art have it in their middle, so one test often settles it.
AreaState ProbeCell(const AIRealPoint& center, double cellSize) {
  return IsArtAt(center) ? kOccupied : ProbeArea(SquareAround(center, cellSize));
}

AIErr FindCandidates(const GridArea& area, double cellSize, PositionList& candidates) {
  candidates.clear();
  const auto size = GridSizeFor(area, cellSize);
  if (!size) return kNoErr;
  if (CellCount(*size) > kMostGridCells) return kOutOfMemoryErr;
  HexGrid grid(area, *size);
  grid.Probe([cellSize](const AIRealPoint& center) { return ProbeCell(center, cellSize); });
  candidates = grid.Candidates();
  return kNoErr;
}

AIErr FindPositions(std::int64_t count, double extent, PositionList& positions) {
  PageGeometry page{};
  AIRealRect art;
  if (const AIErr error = ReadPage(page)) return error;
  if (const AIErr error = GetArtBoundsWithoutRegmarks(art)) return error;
  if (const AIErr error = FitViewToArt(art, extent)) return error;

  const GridArea area = AutoGridArea(page, art, extent);
  if (const AIErr error = FindCandidates(area, AutoCellSize(extent), positions)) return error;
  if (positions.size() >= kFewestToSpread) positions = PickPerSector(positions, area, count);
  ThinOut(positions, std::max(kLeastDistance / GetDocumentScale(), 4 * extent));
  return kNoErr;
}

}  // namespace

AIErr AutoPositions(std::int64_t count, double extent, PositionList& positions) {
  return ReturnedCode([&] { return FindPositions(count, extent, positions); });
}

}  // namespace Vandrell::Corvane
