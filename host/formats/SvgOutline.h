// Outlines as shapes and path data draw them, before they become art.
#pragma once

#include <cstddef>
#include <vector>

#include "Art.h"

namespace host {

// Subpaths, built one command at a time, in user units with y down. Made to be cleared and used again,
// since a drawing has very many of them.
class SvgOutline {
 public:
  void clear();
  void moveTo(AIRealPoint to);
  void lineTo(AIRealPoint to);
  void cubicTo(AIRealPoint control1, AIRealPoint control2, AIRealPoint to);
  void quadraticTo(AIRealPoint control, AIRealPoint to);
  // An elliptical arc as path data gives it, as cubics. The rotation is in degrees.
  void arcTo(AIRealPoint radii, double rotation, bool large, bool sweep, AIRealPoint to);
  // A last anchor on the first one is merged with it. What is drawn next without a move starts there.
  void close();
  // Whether close() takes two places in user units for one: as near as sums of relative coordinates are
  // exact.
  static bool coincide(AIRealPoint a, AIRealPoint b);

  void addEllipse(AIRealPoint centre, AIRealPoint radii);
  // `radii` of 0 leave the corners sharp.
  void addRect(AIRealPoint corner, AIRealPoint size, AIRealPoint radii);

  bool empty() const { return runs_.empty(); }
  AIRealPoint current() const { return current_; }
  // A move that nothing follows makes no path.
  std::vector<PathGeometry> paths(const AIRealMatrix& destinationFromUser) const;
  AIRealRect box() const;  // exact for curves; top is the smallest y; kEmptyRect if there is nothing

 private:
  struct Run {
    std::size_t begin;
    std::size_t end;
    bool closed;
  };

  void beginRunIfNone();

  std::vector<AIPathSegment> segments_;
  std::vector<Run> runs_;
  AIRealPoint start_{};
  AIRealPoint current_{};
  bool open_ = false;  // the last run grows
};

}  // namespace host
