#include "HitIndex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <tuple>

#include "AIHitTest.h"
#include "DrawingMaker.h"

namespace host {
namespace {

using namespace testing;  // NOLINT: makers of drawings

AIPathStyle both(const AIPathStyle& stroke, bool evenOdd = false) {
  AIPathStyle style = stroke;
  style.fillPaint = 1;
  style.fill.color.kind = kGradient;
  style.evenodd = evenOdd;
  return style;
}

TEST(HitIndex, OnePath) {
  const PathGeometry square = box(0, 0, 10, 10);
  const PathGeometry open = straight({{0, 0}, {10, 0}, {10, 10}}, false);
  const PathGeometry spike = straight({{0, 0}, {10, 1}, {0, 2}}, false);
  const PathGeometry twice =
      straight({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}, {10, 0}, {10, 10}, {0, 10}}, true);
  const PathGeometry dot = straight({{5, 5}, {5, 5}}, false);
  const PathGeometry bend = curved({{10, 0}, {10, 5.5}, {5.5, 10}, {0, 10}}, false);
  const PathGeometry steps =
      straight({{0, 60}, {0, 2e-4}, {0, 1e-4}, {0, 0}, {1e-5, 0}, {1e-4, 0}, {60, 0}}, false);
  const PathGeometry speck = straight({{0, 0}, {1e-40, 0}, {1e-40, 1e-40}}, false);
  const AIPathStyle wide = stroked(4);
  AIPathStyle dashed = wide;
  dashed.stroke.dash = {2, 0, {1, 9}};
  // Found by which requests.
  const std::tuple<const char*, PathGeometry, AIPathStyle, AIRealPoint, std::int32_t> cases[] = {
      {"inside", square, filled(), {5, 5}, kFillHitRequest},
      {"unpainted", square, unpainted(), {5, 5}, 0},
      {"open, filled as if closed", open, filled(), {9, 1}, kFillHitRequest},
      {"stroke only: on it", square, wide, {1.9, 5}, kStrokeHitRequest},
      {"fill and stroke", square, both(wide), {1, 5}, kFillHitRequest | kStrokeHitRequest},
      {"fill and stroke: outer half", square, both(wide), {-1, 5}, kStrokeHitRequest},
      {"mitered corner", square, wide, {-1.9, -1.9}, kStrokeHitRequest},
      {"bevelled corner", square, stroked(4, kAIButtCap, kAIBevelJoin), {-1.9, -1.9}, 0},
      {"round corner", square, stroked(4, kAIButtCap, kAIRoundJoin), {-1.3, -1.3}, kStrokeHitRequest},
      {"beyond a round corner", square, stroked(4, kAIButtCap, kAIRoundJoin), {-1.5, -1.5}, 0},
      {"butt end", open, wide, {-0.1, 0}, 0},
      {"projecting end", open, stroked(4, kAIProjectingCap), {-1.9, 1.9}, kStrokeHitRequest},
      {"round end", open, stroked(4, kAIRoundCap), {-1.9, 0}, kStrokeHitRequest},
      {"long miter", spike, stroked(1, kAIButtCap, kAIMiterJoin, 20), {14, 1}, kStrokeHitRequest},
      {"long miter cut", spike, stroked(1, kAIButtCap, kAIMiterJoin, 9), {11, 1}, 0},
      {"square to the curve at its end", bend, stroked(16), {17.9, 0.03}, kStrokeHitRequest},
      {"and not beyond", bend, stroked(16), {17.9, -0.03}, 0},
      {"corner of tiny steps", steps, stroked(8, kAIButtCap, kAIRoundJoin), {-2.8, -2.8}, kStrokeHitRequest},
      {"beyond that corner", steps, stroked(8, kAIButtCap, kAIRoundJoin), {-2.9, -2.9}, 0},
      {"all steps too small to tell apart", speck, stroked(8, kAIRoundCap), {2.8, 2.8}, kStrokeHitRequest},
      {"beyond those", speck, stroked(8, kAIRoundCap), {2.9, 2.9}, 0},
      {"twice round, non-zero", twice, filled(), {5, 5}, kFillHitRequest},
      {"twice round, even-odd", twice, filled(true), {5, 5}, 0},
      {"round dot", dot, stroked(4, kAIRoundCap), {5, 6.9}, kStrokeHitRequest},
      {"projecting dot", dot, stroked(4, kAIProjectingCap), {6.9, 6.9}, kStrokeHitRequest},
      {"butt dot", dot, wide, {5, 5}, 0},
      {"lone anchor", straight({{5, 5}}, false), stroked(4, kAIRoundCap), {5, 5}, 0},
      {"line without area", straight({{0, 0}, {10, 0}}, true), filled(), {5, 0}, 0},
      {"dashes count as solid", square, dashed, {0, 5}, kStrokeHitRequest},
  };
  for (const auto& [what, outline, style, point, found] : cases) {
    SCOPED_TRACE(what);
    Sheet sheet;
    const ArtId path = sheet.path(outline, style);
    const HitIndex index(sheet.document);
    for (const std::int32_t request : {kFillHitRequest, kStrokeHitRequest, kBodyHitRequest, kAllHitRequest}) {
      const bool hit = (found & request) != 0;
      EXPECT_EQ(index.any(point, request), hit) << request;
      EXPECT_EQ(index.topmost(point, request), hit ? path : 0) << request;
      EXPECT_EQ(index.hits(sheet.root(), point, request), hit) << request;
    }
    EXPECT_FALSE(index.any(point, 0));
  }
}

TEST(HitIndex, WhatIsDrawnIsHit) {
  Sheet sheet;
  const ArtId lower = sheet.path(box(0, 0, 10, 10), filled());
  const ArtId group = sheet.group();
  const ArtId upper = sheet.path(box(0, 0, 10, 10), filled(), group);
  const ArtId ring = sheet.compound({box(0, 0, 10, 10), box(2, 2, 8, 8)}, filled(true));
  const ArtId hole = sheet.document.art(ring)->firstChild;
  const LayerId cover = sheet.document.insertLayer(0, kPlaceAboveAll);
  const auto topmost = [&](AIRealPoint p) { return HitIndex(sheet.document).topmost(p, kAllHitRequest); };
  const auto hits = [&](ArtId art, AIRealPoint p) {
    return HitIndex(sheet.document).hits(art, p, kAllHitRequest);
  };

  EXPECT_EQ(topmost({1, 1}), ring);
  EXPECT_EQ(topmost({5, 5}), upper);
  EXPECT_TRUE(hits(ring, {1, 1}));
  EXPECT_FALSE(hits(ring, {5, 5}));
  EXPECT_FALSE(hits(hole, {1, 1}));
  EXPECT_FALSE(hits(hole, {5, 5}));
  EXPECT_TRUE(hits(sheet.document.art(hole)->below, {1, 1}));
  EXPECT_TRUE(hits(lower, {5, 5}));
  EXPECT_TRUE(hits(group, {5, 5}));
  EXPECT_FALSE(hits(sheet.document.layer(cover)->root, {5, 5}));
  EXPECT_FALSE(hits(9999, {5, 5}));

  sheet.change(upper, [](Art& art) { art.locked = true; });
  EXPECT_EQ(topmost({5, 5}), upper);
  sheet.change(group, [](Art& art) { art.hidden = true; });
  EXPECT_EQ(topmost({5, 5}), lower);
  EXPECT_FALSE(hits(upper, {5, 5}));
  sheet.change(ring, [](Art& art) { art.guide = true; });
  EXPECT_EQ(topmost({5, 5}), lower);
  sheet.document.editLayer(sheet.layer()).editable = false;
  EXPECT_EQ(topmost({5, 5}), lower);
  sheet.document.editLayer(sheet.layer()).visible = false;
  EXPECT_EQ(topmost({5, 5}), 0U);
}

TEST(HitIndex, BodiesAnswerAsBodies) {
  Body letters;
  letters.box = {-100, 100, 100, -100};  // of no account beside the parts
  letters.parts.push_back({{box(0, 0, 10, 10), box(2, 2, 8, 8)}, filled(true), nullptr});
  letters.parts.push_back({{straight({{0, 20}, {10, 20}}, false)}, stroked(2), clipTo({box(0, 0, 5, 50)})});
  Body picture;
  picture.box = {30, 10, 40, 0};
  Body nothing;
  nothing.box = {1e300, -1e300, -1e300, 1e300};
  Sheet sheet;
  const ArtId text = sheet.body(letters);
  const ArtId image = sheet.body(picture);
  sheet.body(nothing);
  const HitIndex index(sheet.document);
  const std::vector<std::pair<AIRealPoint, ArtId>> cases = {
      {{1, 1}, text},   {{5, 5}, 0},  {{2, 20.5}, text}, {{7, 20.5}, 0},
      {{35, 5}, image}, {{41, 5}, 0}, {{-50, -50}, 0}};
  for (const auto& [point, art] : cases) {
    EXPECT_EQ(index.topmost(point, kBodyHitRequest), art) << point.x;
    EXPECT_EQ(index.any(point, kAllHitRequest), art != 0) << point.x;
    EXPECT_EQ(index.topmost(point, kFillHitRequest | kStrokeHitRequest), 0U) << point.x;
  }
}

TEST(HitIndex, ClipsCutOff) {
  Sheet sheet;
  const auto corner = clipTo({box(0, 0, 6, 6), box(20, 0, 26, 6)});
  const auto ring = clipTo({box(0, 0, 30, 30), box(2, 2, 4, 4)}, corner, true);
  const ArtId outer = sheet.group(0, ring);
  const ArtId inner = sheet.group(outer, clipTo({box(-5, 1, 25, 50)}));
  const ArtId path = sheet.path(box(-10, -10, 30, 30), filled(), inner);
  const ArtId none = sheet.path(box(-10, -10, 30, 30), filled());
  sheet.change(none, [](Art& art) { art.clip = std::make_shared<Clip>(); });
  const HitIndex index(sheet.document);
  const std::vector<std::pair<AIRealPoint, bool>> cases = {
      {{5, 5}, true},     {{3, 3}, false},    {{1, 0.5}, false},  {{1, 1.5}, true},     {{7, 5}, false},
      {{22, 3}, true},    {{5.99, 5}, true},  {{6.01, 5}, false}, {{1.5, 0.99}, false}, {{1.99, 3}, true},
      {{2.01, 3}, false}, {{25.5, 3}, false}, {{-1, 5}, false},   {{5, 6.5}, false}};
  for (const auto& [point, hit] : cases) {
    EXPECT_EQ(index.any(point, kAllHitRequest), hit) << point.x << " " << point.y;
    EXPECT_EQ(index.topmost(point, kAllHitRequest), hit ? path : 0) << point.x << " " << point.y;
    EXPECT_EQ(index.hits(outer, point, kAllHitRequest), hit) << point.x << " " << point.y;
  }
}

// --- crowds, strays and giants ---

// Something painted under clips, so that it can be drawn among others and alone.
struct Painted {
  std::vector<PathGeometry> paths;
  AIPathStyle style;
  std::vector<std::shared_ptr<const Clip>> clips;
  bool isBody;

  ArtId drawOn(Sheet& sheet) const {
    ArtId parent = 0;
    for (const std::shared_ptr<const Clip>& clip : clips) parent = sheet.group(parent, clip);
    if (isBody) return sheet.body({{}, {{paths, style, nullptr}}}, parent);
    return paths.size() == 1 ? sheet.path(paths[0], style, parent) : sheet.compound(paths, style, parent);
  }
};

class RandomPainter {
 public:
  RandomPainter(unsigned seed, double scale, double offset) : random_(seed), scale_(scale), offset_(offset) {}

  double number(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  bool happens(double probability) { return number(0, 1) < probability; }
  AIRealPoint point() { return at(number(-20, 120), number(-20, 120)); }
  // So large that it lies about the others, or so far away that it leaves them no room in a common grid.
  Painted giant() {
    return {{box(-1e9, -1e9, 1e9, 1e9)}, happens(0.5) ? filled() : stroked(10 * scale_), {}, false};
  }
  Painted stray() { return {{box(1e9, 1e9, 1e9 + 1, 1e9 + 1)}, filled(), {}, false}; }
  Painted painted() {
    Painted made{{shape(50)}, style(), {}, happens(0.2)};
    if (happens(0.4)) made.paths.insert(made.paths.end(), {shape(50), shape(50)});
    if (happens(0.4)) {
      const auto further = happens(0.5) ? clipTo({shape(90), shape(40)}, nullptr, true) : nullptr;
      made.clips.push_back(clipTo({shape(80)}, further));
    }
    if (happens(0.2)) made.clips.push_back(clipTo({shape(70), shape(60)}));
    return made;
  }

 private:
  PathGeometry shape(double size) {
    const double x = number(0, 100), y = number(0, 100);
    const bool closed = happens(0.6);
    Points points;
    for (int i = 0; i < (closed ? 9 : 10); ++i) {
      points.push_back(at(x + number(-size, size) / 2, y + number(-size, size) / 2));
    }
    return happens(0.7) ? curved(points, closed) : straight(points, closed);
  }
  AIPathStyle style() {
    const AIPathStyle pen =
        stroked(std::exp(number(-1.5, 2.5)) * scale_, static_cast<AILineCap>(number(0, 3)),
                static_cast<AILineJoin>(number(0, 3)), number(1, 6));
    const double kind = number(0, 3);
    return kind < 1 ? filled(happens(0.5)) : kind < 2 ? pen : both(pen, happens(0.5));
  }

  AIRealPoint at(double x, double y) const { return {x * scale_ + offset_, y * scale_ + offset_}; }

  std::mt19937 random_;
  double scale_, offset_;
};

// Every grid, mask and order of many things gives what each of them gives by itself.
TEST(HitIndex, ACrowdAnswersAsTheTopmostOfThemAlone) {
  const std::int32_t requests[] = {kAllHitRequest, kFillHitRequest, kStrokeHitRequest, kBodyHitRequest};
  int hits = 0;
  for (unsigned seed = 1; seed <= 12; ++seed) {
    RandomPainter painter(seed, seed % 3 == 0 ? 3 : seed % 3 == 1 ? 1 : 0.1, seed % 4 == 0 ? 1e6 : 0);
    Sheet crowd;
    std::vector<std::pair<ArtId, HitIndex>> alone;  // from the top
    for (int i = 0; i < (seed % 2 == 0 ? 20 : 100); ++i) {
      const Painted painted = i != 10 ? painter.painted() : seed % 2 == 0 ? painter.giant() : painter.stray();
      Sheet sheet;
      painted.drawOn(sheet);
      alone.emplace(alone.begin(), painted.drawOn(crowd), HitIndex(sheet.document));
    }
    const HitIndex index(crowd.document);
    for (int i = 0; i < 2000; ++i) {
      const AIRealPoint point = i % 50 == 0 ? AIRealPoint{1e9 + 0.5, 1e9 + 0.5} : painter.point();
      const std::int32_t request = requests[i % 4];
      const auto top = std::find_if(alone.begin(), alone.end(),
                                    [&](const auto& one) { return one.second.any(point, request); });
      const ArtId expected = top == alone.end() ? 0 : top->first;
      ASSERT_EQ(index.topmost(point, request), expected) << seed << ": " << point.x << ", " << point.y;
      ASSERT_EQ(index.any(point, request), expected != 0) << seed << ": " << point.x << ", " << point.y;
      hits += expected != 0 ? 1 : 0;
    }
  }
  EXPECT_GT(hits, 12 * 2000 / 10);
}

TEST(HitIndex, NothingIsNowhere) {
  Sheet sheet;
  sheet.group();
  sheet.path({}, both(stroked(2, kAIRoundCap)));
  const HitIndex index(sheet.document);
  EXPECT_FALSE(index.any({0, 0}, kAllHitRequest));
  EXPECT_EQ(index.topmost({std::nan(""), 0}, kAllHitRequest), 0U);
  EXPECT_FALSE(HitIndex(Document()).any({0, 0}, kAllHitRequest));
}

TEST(HitIndex, DepthIsNoDanger) {
  Sheet sheet;
  ArtId group = 0;
  for (int i = 0; i < 50000; ++i) group = sheet.group(group);
  const ArtId deep = sheet.path(box(0, 0, 10, 10), filled(), group);
  ArtId clipped = 0;
  for (int i = 0; i < 1000; ++i)
    clipped = sheet.group(clipped, clipTo({box(20 + i * 0.001, 0, 40, 40 - i * 0.02)}));
  const ArtId inside = sheet.path(box(0, 0, 100, 100), filled(), clipped);
  const HitIndex index(sheet.document);
  EXPECT_EQ(index.topmost({5, 5}, kAllHitRequest), deep);
  EXPECT_EQ(index.topmost({30, 5}, kAllHitRequest), inside);
  EXPECT_TRUE(index.any({21.1, 19.9}, kAllHitRequest));
  EXPECT_FALSE(index.any({20.9, 19.9}, kAllHitRequest));
  EXPECT_FALSE(index.any({30, 20.1}, kAllHitRequest));
}

}  // namespace
}  // namespace host
