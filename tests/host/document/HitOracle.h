// What lies under a point, worked out the slow way: from the definition of fills and strokes, over points
// packed densely along the curves.
#pragma once

#include <vector>

#include "Document.h"

namespace host::testing {

struct Painted {
  ArtId art;
  std::vector<PathGeometry> paths;
  AIPathStyle style;
  std::int32_t fillRequest, strokeRequest;
  std::vector<std::shared_ptr<const Clip>> clips;
};

class HitOracle {
 public:
  void add(const Painted& painted);  // above all before

  // 0 if nothing is there.
  ArtId topmost(AIRealPoint point, std::int32_t request) const;
  // Does the answer hold for all that lies within `margin`? Where it doesn't, an edge is near.
  bool isCertain(AIRealPoint point, std::int32_t request, double margin) const;

  // A point on the course of some path.
  AIRealPoint somewhereOn(std::size_t choice) const;

 private:
  struct Curve {
    std::vector<AIRealPoint> points, tangents;
  };
  struct Course {
    std::vector<Curve> curves;
    bool closed;
  };
  struct Area {
    std::vector<Course> courses;
    bool evenOdd;
  };
  struct Item {
    Painted painted;
    Area area;
    std::vector<std::vector<Area>> clips;  // the point must lie in one area of each
    AIRealRect reach;
  };

  static Course courseOf(const PathGeometry& path);
  static Area areaOf(const std::vector<PathGeometry>& paths, bool evenOdd);
  static bool isInside(const Area& area, AIRealPoint point);
  static bool isOnStroke(const Course& course, const AIStrokeStyle& stroke, AIRealPoint point);
  static bool isOnJoin(AIRealPoint offset, AIRealPoint in, AIRealPoint out, const AIStrokeStyle& stroke);
  static bool isOnCap(AIRealPoint offset, AIRealPoint outward, const AIStrokeStyle& stroke);

  std::vector<Item> items_;
};

}  // namespace host::testing
