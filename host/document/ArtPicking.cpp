#include "ArtPicking.h"

#include <algorithm>
#include <cmath>

#include "Chords.h"
#include "DrawnArt.h"
#include "Geometry.h"
#include "Paint.h"
#include "Vector.h"

namespace host {
namespace {

constexpr double kFinest = 0.005;  // document units
constexpr double kStepsInArea = 8;

AIRealRect controlBounds(const PathGeometry& path) {
  AIRealRect rect = kEmptyRect;
  for (const AIPathSegment& segment : path.segments) {
    for (const AIRealPoint& point : {segment.p, segment.in, segment.out}) include(rect, point);
  }
  return rect;
}

bool touch(const AIRealRect& a, const AIRealRect& b) {
  return a.left <= b.right && b.left <= a.right && a.bottom <= b.top && b.bottom <= a.top;
}

// What is left of the stretch `from` to `to` of a segment where start + t * step lies within low and high.
bool narrow(double start, double step, double low, double high, double& from, double& to) {
  if (step == 0) return low <= start && start <= high;
  const auto [first, last] = std::minmax({(low - start) / step, (high - start) / step});
  from = std::max(from, first);
  to = std::min(to, last);
  return from <= to;
}

bool crosses(AIRealPoint a, AIRealPoint b, const AIRealRect& area) {
  double from = 0, to = 1;
  return narrow(a.x, b.x - a.x, area.left, area.right, from, to) &&
         narrow(a.y, b.y - a.y, area.bottom, area.top, from, to);
}

double distance(AIRealPoint point, const AIRealRect& area) {
  return std::hypot(std::max({area.left - point.x, 0.0, point.x - area.right}),
                    std::max({area.bottom - point.y, 0.0, point.y - area.top}));
}

bool comesNear(AIRealPoint a, AIRealPoint b, const AIRealRect& area, double reach) {
  if (crosses(a, b, area) || distance(a, area) <= reach || distance(b, area) <= reach) return true;
  for (const double x : {area.left, area.right}) {
    for (const double y : {area.bottom, area.top}) {
      if (distanceToChord({x, y}, a, b) <= reach) return true;
    }
  }
  return false;
}

// What touches one area.
class Picker {
 public:
  explicit Picker(const AIRealRect& area)
      : area_(area),
        middle_{(area.left + area.right) / 2, (area.bottom + area.top) / 2},
        tolerance_(
            std::max(kFinest, std::min(area.right - area.left, area.top - area.bottom) / kStepsInArea)) {}

  bool touches(const Document& document, const DrawnArt& drawn, const DrawnArt::Object& object) const {
    if (!touchesPaint(document, drawn, object)) return false;
    for (std::uint32_t scope = object.scope; scope != DrawnArt::kNone; scope = drawn.scopes[scope].outer) {
      if (!touchesClip(*drawn.scopes[scope].clip)) return false;
    }
    return true;
  }

 private:
  using Paths = std::vector<const PathGeometry*>;

  bool touchesPaint(const Document& document, const DrawnArt& drawn, const DrawnArt::Object& object) const {
    if (object.style == nullptr) return touch(object.box, area_);
    const bool filled = paintsFill(*object.style);
    const bool stroked = paintsStroke(*object.style);
    if (!filled && !stroked) return false;
    const double reach = stroked ? object.style->stroke.width / 2 : 0;
    const Paths paths = pathsNear(drawn, object, reach);
    if (paths.empty()) return false;
    if (object.isBody && document.art(object.art)->type == kTextFrameArt) return true;
    return (stroked && touchesLines(paths, reach, false)) ||
           (filled && touchesFill(paths, object.style->evenodd != 0));
  }

  Paths pathsNear(const DrawnArt& drawn, const DrawnArt::Object& object, double reach) const {
    const AIRealRect near = inflated(area_, reach);
    Paths paths;
    for (std::uint32_t i = object.firstPath; i < object.endPath; ++i) {
      if (touch(controlBounds(*drawn.paths[i]), near)) paths.push_back(drawn.paths[i]);
    }
    return paths;
  }

  bool touchesClip(const Clip& clip) const {
    return std::any_of(clip.outlines.begin(), clip.outlines.end(), [&](const Clip::Outline& outline) {
      Paths paths;
      for (const PathGeometry& path : outline.paths) paths.push_back(&path);
      return touchesFill(paths, outline.evenOdd);
    });
  }

  bool touchesLines(const Paths& paths, double reach, bool close) const {
    for (const PathGeometry* path : paths) {
      const std::vector<AIRealPoint> line = flatten(*path, tolerance_, close);
      for (std::size_t i = 1; i < line.size(); ++i) {
        if (comesNear(line[i - 1], line[i], area_, reach)) return true;
      }
    }
    return false;
  }

  bool touchesFill(const Paths& paths, bool evenOdd) const {
    int winding = 0;
    for (const PathGeometry* path : paths) winding += windingOf(flatten(*path, tolerance_, true), middle_);
    return isInside(winding, evenOdd) || touchesLines(paths, 0, true);
  }

  const AIRealRect area_;
  const AIRealPoint middle_;
  const double tolerance_;
};

}  // namespace

ArtId topmostArtIn(const Document& document, const AIRealRect& area) {
  const DrawnArt drawn(document);
  const Picker picker(area);
  for (auto object = drawn.objects.rbegin(); object != drawn.objects.rend(); ++object) {
    if (picker.touches(document, drawn, *object) && document.isEditable(object->art)) return object->art;
  }
  return 0;
}

std::vector<ArtId> allArtIn(const Document& document, const AIRealRect& area) {
  const DrawnArt drawn(document);
  const Picker picker(area);
  std::vector<ArtId> found;
  for (const DrawnArt::Object& object : drawn.objects) {
    if (!found.empty() && found.back() == object.art) continue;  // another part of the same body
    if (picker.touches(document, drawn, object) && document.isEditable(object.art)) {
      found.push_back(object.art);
    }
  }
  return found;
}

ArtId outermostOf(const Document& document, ArtId id) {
  for (const Art* art = document.art(id); art != nullptr && art->parent != 0; art = document.art(id)) {
    if (document.art(art->parent)->parent == 0) return id;
    id = art->parent;
  }
  return 0;
}

}  // namespace host
