// Finds among many pieces of lines those that run along each other.
//
// Pieces lie in slots: by their length, by a square cell that holds their middle, and by their direction.
// Within a slot they are in the order of their distance from one line in that direction, so what runs along a
// piece is near it in a few slots. Pieces that are not doubled keep apart, and those that are find a partner
// close by: so however thick a crowd is, time goes with n log n.
#pragma once

#include <cstdint>
#include <vector>

#include "LinePieces.h"

namespace host {

class PieceIndex {
 public:
  // `lines` must outlive it.
  PieceIndex(const LinePieces& lines, const OverlapLimits& limits);

  // By piece: whether another one runs along its middle, whichever way round, and not as its own path's next.
  std::vector<bool> findDoubled() const;

 private:
  // Pieces of about one length.
  struct Level {
    double longest;
    double cell;     // side of a cell
    double bend;     // radians between pieces that run along each other
    double binSize;  // radians
    double band;     // how far from a piece's line the middles of its partners lie, seen along a bin
    std::vector<AIRealPoint> axes;  // by bin, of length 1 along its middle; none while no piece is here
  };
  struct Entry {
    std::uint64_t slot;
    double offset;
    std::uint32_t piece;
  };
  struct Run {
    std::uint64_t slot;
    std::size_t first, end;  // of entries
  };
  struct Seeker;  // a piece that looks for another
  struct Bins;    // some that are beside each other

  Level levelOf(double longest) const;
  std::size_t levelFor(double size) const;
  Entry entryOf(std::uint32_t piece);
  void findRuns();
  std::size_t firstRunFrom(std::uint64_t slot) const;
  bool hasPartner(std::size_t place) const;
  bool hasPartnerIn(const Seeker& seeker, std::size_t level) const;
  bool hasPartnerIn(const Seeker& seeker, const Level& level, std::uint64_t cell, const Bins& bins) const;
  bool hasPartnerIn(const Seeker& seeker, const Run& run, double offset, double band) const;
  std::size_t firstFrom(const Run& run, double offset) const;
  bool runsAlong(const LinePiece& other, const Seeker& seeker) const;

  const LinePieces& lines_;
  OverlapLimits limits_;
  std::vector<Level> levels_;             // from the longest pieces to the shortest
  std::vector<double> directions_;        // by piece
  std::vector<Entry> entries_;            // by slot, then by offset
  std::vector<Run> runs_;                 // by slot
  std::vector<std::uint32_t> firstRuns_;  // by the leading bits of a slot; one more at the end
  int trailingBits_ = 0;
};

}  // namespace host
