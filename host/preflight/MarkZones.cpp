#include "MarkZones.h"

#include <algorithm>
#include <cmath>

#include "Chords.h"
#include "Geometry.h"
#include "Paint.h"
#include "Vector.h"

namespace host {
namespace {

// A camera wants as much free paper round a mark as the mark is wide: a dot of 6 mm on a disc of 12 mm.
constexpr double kRadiusInSizes = 1;
// Millimetres. Art may come up to the zone, as numbers are rounded.
constexpr double kRounding = 0.02;
constexpr double kFinest = 0.02;  // millimetres, of flattened curves

bool isPaperWhite(const AIColor& color) {
  switch (color.kind) {
    case kGrayColor:
      return color.c.g.gray <= 0;
    case kFourColor:
      return color.c.f.cyan + color.c.f.magenta + color.c.f.yellow + color.c.f.black <= 0;
    case kThreeColor:
      return std::min({color.c.rgb.red, color.c.rgb.green, color.c.rgb.blue}) >= 1;
    case kCustomColor:
      return color.c.c.tint >= 1;
    default:
      return false;
  }
}

// An outline as chords, each subpath by itself.
using Chords = std::vector<std::vector<AIRealPoint>>;

struct Circle {
  AIRealPoint centre;
  double radius;
};

bool comesWithin(const Chords& chords, AIRealPoint centre, double radius) {
  for (const auto& points : chords) {
    if (points.size() == 1 && length(points.front() - centre) < radius) return true;
    for (std::size_t i = 1; i < points.size(); ++i) {
      if (distanceToChord(centre, points[i - 1], points[i]) < radius) return true;
    }
  }
  return false;
}

enum class Reach { None, Enters, Covers };

Reach reachOfFill(const Chords& rings, bool evenOdd, const Circle& circle) {
  if (comesWithin(rings, circle.centre, circle.radius)) return Reach::Enters;
  int winding = 0;
  for (const auto& ring : rings) winding += windingOf(ring, circle.centre);
  return isInside(winding, evenOdd) ? Reach::Covers : Reach::None;
}

Reach reachOfRect(const AIRealRect& box, const Circle& circle) {
  const AIRealRect inner = inflated(box, -circle.radius);
  if (!isEmpty(inner) && contains(inner, circle.centre)) return Reach::Covers;
  const AIRealPoint& c = circle.centre;
  const double apart = std::hypot(std::max({box.left - c.x, 0.0, c.x - box.right}),
                                  std::max({box.bottom - c.y, 0.0, c.y - box.top}));
  return apart < circle.radius ? Reach::Enters : Reach::None;
}

// What one object does to marks; flattens its outlines at the first that it may touch.
class InkedObject {
 public:
  InkedObject(const PreflightJob& job, const DrawnArt::Object& object, double finest)
      : job_(job), object_(object), finest_(finest) {
    const AIPathStyle* style = object.style;
    fills_ = style != nullptr && paintsFill(*style);
    if (style != nullptr && paintsStroke(*style)) half_ = style->stroke.width / 2;
    isWhiteFill_ = fills_ && isPaperWhite(style->fill.color);
    isWhiteStroke_ = half_ > 0 && isPaperWhite(style->stroke.color);
  }

  bool isPainted() const { return object_.style == nullptr || fills_ || half_ > 0; }
  // Of all its outlines, handles and ink; may be more.
  AIRealRect roughBox() const {
    if (object_.style == nullptr) return object_.box;
    AIRealRect box = kEmptyRect;
    for (std::uint32_t i = object_.firstPath; i < object_.endPath; ++i) {
      for (const AIPathSegment& segment : job_.drawn.paths[i]->segments) {
        for (const AIRealPoint point : {segment.p, segment.in, segment.out}) include(box, point);
      }
    }
    return inflated(box, half_);
  }

  // Ink that is seen on paper.
  Reach ink(const Circle& circle) {
    if (object_.style == nullptr) return clipped(reachOfRect(object_.box, circle), circle);
    Reach reach = Reach::None;
    if (fills_ && !isWhiteFill_) reach = fill(circle);
    if (reach == Reach::None && half_ > 0 && !isWhiteStroke_ &&
        comesWithin(open(), circle.centre, circle.radius + half_)) {
      reach = Reach::Enters;
    }
    return clipped(reach, circle);
  }

  // Hides all that is below it.
  bool whitens(const Circle& circle) {
    return isWhiteFill_ && (half_ == 0 || isWhiteStroke_) && clipped(fill(circle), circle) == Reach::Covers;
  }

 private:
  Reach fill(const Circle& circle) { return reachOfFill(closed(), object_.style->evenodd != 0, circle); }

  Reach clipped(Reach reach, const Circle& circle) const {
    for (std::uint32_t scope = object_.scope; reach != Reach::None && scope != DrawnArt::kNone;
         scope = job_.drawn.scopes[scope].outer) {
      reach = std::min(reach, reachOfClip(*job_.drawn.scopes[scope].clip, circle));
    }
    return reach;
  }

  Reach reachOfClip(const Clip& clip, const Circle& circle) const {
    Reach reach = Reach::None;
    for (const Clip::Outline& outline : clip.outlines) {
      Chords rings;
      for (const PathGeometry& path : outline.paths) rings.push_back(flatten(path, finest_, true));
      reach = std::max(reach, reachOfFill(rings, outline.evenOdd, circle));
    }
    return reach;
  }

  const Chords& open() { return chords(open_, false); }
  const Chords& closed() { return chords(closed_, true); }
  const Chords& chords(Chords& known, bool close) {
    if (!known.empty()) return known;
    for (std::uint32_t i = object_.firstPath; i < object_.endPath; ++i) {
      known.push_back(flatten(*job_.drawn.paths[i], finest_, close));
    }
    return known;
  }

  const PreflightJob& job_;
  const DrawnArt::Object& object_;
  double finest_;
  bool fills_ = false, isWhiteFill_ = false, isWhiteStroke_ = false;
  double half_ = 0;  // of a stroke's width
  Chords open_, closed_;
};

void note(std::vector<ArtId>& arts, ArtId art) {
  if (arts.empty() || arts.back() != art) arts.push_back(art);
}

}  // namespace

std::vector<MarkZone> zonesOf(const PreflightJob& job) {
  std::vector<MarkZone> zones;
  double widest = 0;
  for (const JobMark& mark : job.marks) {
    const double size = std::max(mark.box.right - mark.box.left, mark.box.top - mark.box.bottom);
    zones.push_back({mark, kRadiusInSizes * size, {}, {}});
    widest = std::max(widest, zones.back().radius);
  }
  std::vector<MarkZone*> byX;
  for (MarkZone& zone : zones) byX.push_back(&zone);
  std::sort(byX.begin(), byX.end(),
            [](const MarkZone* a, const MarkZone* b) { return a->mark.centre.x < b->mark.centre.x; });
  for (const DrawnArt::Object& object : job.drawn.objects) {
    InkedObject inked(job, object, job.unitsOf(kFinest));
    if (!inked.isPainted()) continue;
    const AIRealRect near = inflated(inked.roughBox(), widest);
    auto zone = std::lower_bound(byX.begin(), byX.end(), near.left, [](const MarkZone* candidate, double x) {
      return candidate->mark.centre.x < x;
    });
    for (; zone != byX.end() && (*zone)->mark.centre.x <= near.right; ++zone) {
      MarkZone& at = **zone;
      if (!contains(near, at.mark.centre) || job.document.isWithin(object.art, at.mark.art)) continue;
      const Circle circle{at.mark.centre, at.radius - job.unitsOf(kRounding)};
      if (inked.whitens(circle)) {
        at.entering.clear();
        at.covering.clear();
        continue;
      }
      const Reach reach = inked.ink(circle);
      if (reach == Reach::Enters) note(at.entering, object.art);
      if (reach == Reach::Covers) note(at.covering, object.art);
    }
  }
  return zones;
}

}  // namespace host
