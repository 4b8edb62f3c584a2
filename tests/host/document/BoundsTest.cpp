#include "Bounds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <tuple>

#include "Cubic.h"
#include "DrawingMaker.h"
#include "Geometry.h"
#include "Vector.h"

namespace host {
namespace {

using namespace testing;  // NOLINT: makers of drawings

const double kRoot2 = std::sqrt(2.0);

void expectBounds(const AIRealRect& found, const AIRealRect& wanted, double tolerance = 1e-9) {
  EXPECT_NEAR(found.left, wanted.left, tolerance);
  EXPECT_NEAR(found.bottom, wanted.bottom, tolerance);
  EXPECT_NEAR(found.right, wanted.right, tolerance);
  EXPECT_NEAR(found.top, wanted.top, tolerance);
}

// Left, bottom, right, top.
AIRealRect rect(double left, double bottom, double right, double top) {
  return {left, top, right, bottom};
}

AIRealRect boundsOf(const PathGeometry& path, const AIPathStyle& style,
                    const AIRealMatrix* matrix = nullptr) {
  Sheet sheet;
  return artBounds(sheet.document, sheet.path(path, style), matrix, 0);
}

TEST(StrokeBounds, HoldJoinsMitersAndCaps) {
  const PathGeometry slope = straight({{0, 0}, {10, 10}}, false);
  const PathGeometry wedge = straight({{-10, 10}, {0, 0}, {10, 10}}, false);  // 90 degrees, pointing down
  const PathGeometry back = straight({{0, 0}, {10, 0}, {0, 0}}, false);
  const PathGeometry dot = straight({{3, 4}, {3, 4}}, false);
  const PathGeometry diamond = straight({{0, 0}, {10, 10}, {0, 20}, {-10, 10}}, true);

  const double h = 1 / kRoot2;
  const std::tuple<const char*, PathGeometry, AIPathStyle, AIRealRect> cases[] = {
      {"butt aslant", slope, stroked(2), rect(-h, -h, 10 + h, 10 + h)},
      {"projecting aslant", slope, stroked(2, kAIProjectingCap),
       rect(-2 * h, -2 * h, 10 + 2 * h, 10 + 2 * h)},
      {"round aslant", slope, stroked(2, kAIRoundCap), rect(-1, -1, 11, 11)},
      {"limit just above", wedge, stroked(2, kAIButtCap, kAIMiterJoin, 1.4143),
       rect(-10 - h, -kRoot2, 10 + h, 10 + h)},
      {"limit just below", wedge, stroked(2, kAIButtCap, kAIMiterJoin, 1.4142),
       rect(-10 - h, -h, 10 + h, 10 + h)},
      {"bevel", wedge, stroked(2, kAIButtCap, kAIBevelJoin), rect(-10 - h, -h, 10 + h, 10 + h)},
      {"round join", wedge, stroked(2, kAIButtCap, kAIRoundJoin), rect(-10 - h, -1, 10 + h, 10 + h)},
      {"straight back, miter", back, stroked(2), rect(0, -1, 10, 1)},
      {"straight back, round", back, stroked(2, kAIButtCap, kAIRoundJoin), rect(0, -1, 11, 1)},
      {"closed, joined all round", diamond, stroked(2),
       rect(-10 - kRoot2, -kRoot2, 10 + kRoot2, 20 + kRoot2)},
      {"dot, butt", dot, stroked(2), rect(3, 4, 3, 4)},
      {"dot, round", dot, stroked(2, kAIRoundCap), rect(2, 3, 4, 5)},
      {"closed dot, round", straight({{3, 4}}, true), stroked(2, kAIRoundCap), rect(2, 3, 4, 5)},
      {"lone anchor draws nothing", straight({{3, 4}}, false), stroked(2, kAIRoundCap), rect(3, 4, 3, 4)},
      {"equal anchors are passed over", straight({{-10, 10}, {0, 0}, {0, 0}, {10, 10}}, false), stroked(2),
       rect(-10 - h, -kRoot2, 10 + h, 10 + h)},
      {"inner side of a bend by a short tail", straight({{0, 0}, {10, 0}, {10, 0.5}}, false), stroked(6),
       rect(0, -3, 13, 3)},
  };
  for (const auto& [what, path, style, bounds] : cases) {
    SCOPED_TRACE(what);
    expectBounds(boundsOf(path, style), bounds);
  }
}

// Points all over the stroke of one curve with round caps, after a matrix, so many that they come near every
// edge of it.
AIRealRect sampledStroke(const Cubic& curve, double half, bool roundCaps, const AIRealMatrix& matrix) {
  AIRealRect found = kEmptyRect;
  constexpr int kSamples = 5000;
  for (int i = 0; i <= kSamples; ++i) {
    const double t = static_cast<double>(i) / kSamples;
    const AIRealPoint aside = leftOf(unit(derivativeAt(curve, t))) * half;
    include(found, apply(matrix, pointAt(curve, t) + aside));
    include(found, apply(matrix, pointAt(curve, t) - aside));
  }
  for (int i = 0; roundCaps && i <= kSamples; ++i) {
    const double angle = std::acos(-1.0) * i / kSamples;
    const auto around = [&](AIRealPoint centre, AIRealPoint tangent) {
      include(found,
              apply(matrix, centre + (leftOf(tangent) * std::cos(angle) + tangent * std::sin(angle)) * half));
    };
    around(curve.p0, -startTangent(curve));
    around(curve.p3, endTangent(curve));
  }
  return found;
}

TEST(StrokeBounds, HoldCurvesOfAllKindsUnderAllMatrices) {
  std::mt19937 random(7);
  const auto number = [&random](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  for (int i = 0; i < 100; ++i) {
    const auto point = [&] { return AIRealPoint{number(-10, 10), number(-10, 10)}; };
    const Points points = {point(), point(), point(), point()};
    const double half = number(0.2, 8);
    const bool roundCaps = i % 2 == 0;
    const AIRealMatrix matrix{number(-2, 2), number(-2, 2), number(-2, 2), number(-2, 2), number(-9, 9), 0};
    const AIPathStyle style = stroked(2 * half, roundCaps ? kAIRoundCap : kAIButtCap);
    const AIRealRect wanted =
        sampledStroke({points[0], points[1], points[2], points[3]}, half, roundCaps, matrix);
    const AIRealRect found = boundsOf(curved(points, false), style, &matrix);
    SCOPED_TRACE(i);
    EXPECT_TRUE(contains(inflated(found, 1e-9), wanted));
    expectBounds(found, wanted, 0.01);
  }
}

TEST(ArtBounds, CountWhatTheFlagsSay) {
  const PathGeometry square = box(0, 0, 10, 10);
  AIPathStyle noWidth = stroked(0);
  AIPathStyle noColour = stroked(2);
  noColour.fillPaint = 1;
  noColour.stroke.color.kind = kNoneColor;
  const std::int32_t painted = kExcludeUnpaintedObjectBounds;
  const AIRealRect bare = rect(0, 0, 10, 10);
  // Is it a guide, and what is asked for?
  const std::tuple<const char*, AIPathStyle, bool, std::int32_t, AIRealRect> cases[] = {
      {"stroke", stroked(2), false, 0, rect(-1, -1, 11, 11)},
      {"stroke not asked for", stroked(2), false, kNoStrokeBounds, bare},
      {"unpainted, excluded", unpainted(), false, painted, kEmptyRect},
      {"filled", filled(), false, painted, bare},
      {"stroked, both", stroked(2), false, painted | kNoStrokeBounds, bare},
      {"without width", noWidth, false, painted, kEmptyRect},
      {"without colour", noColour, false, painted, kEmptyRect},
      {"guide, excluded", filled(), true, kExcludeGuideBounds, kEmptyRect},
      {"no guide", filled(), false, painted | kExcludeGuideBounds, bare},
  };
  for (const auto& [what, style, guide, flags, bounds] : cases) {
    SCOPED_TRACE(what);
    Sheet sheet;
    sheet.change(sheet.path(square, style), [isGuide = guide](Art& art) { art.guide = isGuide; });
    expectBounds(artBounds(sheet.document, sheet.root(), nullptr, flags), bounds);
  }
}

TEST(ArtBounds, GatherAllThatIsInside) {
  Sheet sheet;
  const ArtId group = sheet.group();
  EXPECT_TRUE(isEmpty(artBounds(sheet.document, group, nullptr, 0)));
  const ArtId inner = sheet.group(group);
  const ArtId hidden = sheet.path(box(0, 0, 1, 1), filled(), inner);
  sheet.change(hidden, [](Art& art) { art.hidden = art.locked = true; });
  sheet.path(box(5, 5, 6, 6), filled(), group);
  const ArtId compound = sheet.compound({box(20, 0, 30, 10), box(22, 2, 28, 8)}, stroked(2), group);
  sheet.path(box(100, 100, 101, 101), filled());
  expectBounds(artBounds(sheet.document, group, nullptr, 0), rect(0, -1, 31, 11));
  expectBounds(artBounds(sheet.document, compound, nullptr, kExcludeUnpaintedObjectBounds),
               rect(19, -1, 31, 11));
  const ArtId part = sheet.document.art(compound)->firstChild;
  expectBounds(artBounds(sheet.document, part, nullptr, kExcludeUnpaintedObjectBounds), rect(21, 1, 29, 9));
  const AIRealMatrix turn{0, 2, -2, 0, 0, 0};
  expectBounds(artBounds(sheet.document, compound, &turn, 0), rect(-22, 38, 2, 62));
  EXPECT_TRUE(isEmpty(artBounds(sheet.document, 0, nullptr, 0)));
}

TEST(ArtBounds, TakeClipsByTheirBounds) {
  Sheet sheet;
  const auto clip = clipTo({box(0, 0, 50, 50)}, clipTo({box(10, 10, 80, 80), box(200, 200, 201, 201)}));
  const ArtId group = sheet.group(0, clip);
  sheet.path(box(-100, 20, 30, 30), stroked(4), group);
  const ArtId clipped = sheet.path(box(0, 0, 100, 100), filled(), group);
  sheet.change(clipped, [](Art& art) { art.clip = clipTo({box(40, 45, 60, 60)}); });
  sheet.path(box(60, 60, 70, 70), filled(), group);  // clipped off
  expectBounds(artBounds(sheet.document, group, nullptr, 0), rect(10, 18, 50, 50));
  expectBounds(artBounds(sheet.document, clipped, nullptr, 0), rect(40, 45, 60, 60));
  const AIRealMatrix mirrored{-1, 0, 0, 2, 0, 0};
  expectBounds(artBounds(sheet.document, clipped, &mirrored, 0), rect(-60, 90, -40, 120));
  sheet.change(clipped, [](Art& art) { art.clip = std::make_shared<Clip>(); });
  EXPECT_TRUE(isEmpty(artBounds(sheet.document, clipped, nullptr, 0)));
}

TEST(ArtBounds, TakeBodiesByTheirPartsOrTheirBox) {
  Sheet sheet;
  Body boxOnly;
  boxOnly.box = rect(1, 2, 3, 5);
  Body parts = boxOnly;
  parts.parts.push_back({{box(0, 0, 10, 10), box(20, 0, 30, 10)}, stroked(2), nullptr});
  parts.parts.push_back({{box(50, 50, 90, 90)}, filled(), clipTo({box(0, 0, 60, 60)})});
  parts.parts.push_back({{box(-500, 0, 0, 5)}, unpainted(), nullptr});
  Body nothing;
  nothing.box = kEmptyRect;
  const AIRealMatrix turn{0, 1, -1, 0, 0, 0};
  const std::int32_t painted = kExcludeUnpaintedObjectBounds;
  expectBounds(artBounds(sheet.document, sheet.body(boxOnly), nullptr, painted), rect(1, 2, 3, 5));
  expectBounds(artBounds(sheet.document, sheet.body(boxOnly), &turn, 0), rect(-5, 1, -2, 3));
  expectBounds(artBounds(sheet.document, sheet.body(parts), nullptr, painted), rect(-1, -1, 60, 60));
  expectBounds(artBounds(sheet.document, sheet.body(parts), nullptr, painted | kNoStrokeBounds),
               rect(0, 0, 60, 60));
  EXPECT_TRUE(isEmpty(artBounds(sheet.document, sheet.body(nothing), nullptr, 0)));
}

}  // namespace
}  // namespace host
