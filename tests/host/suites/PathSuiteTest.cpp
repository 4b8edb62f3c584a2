#include <cmath>
#include <vector>

#include "AICustomColor.h"
#include "HostFixture.h"
#include "UndoStep.h"

namespace {

AIPathSegment corner(AIReal x, AIReal y) {
  return {{x, y}, {x, y}, {x, y}, 1};
}

class PathSuiteTest : public HostFixture {
 protected:
  std::vector<AIReal> xs(AIArtHandle path) {
    std::int16_t count = 0;
    EXPECT_EQ(paths.GetPathSegmentCount(path, &count), kNoErr);
    std::vector<AIPathSegment> segments(static_cast<std::size_t>(count));
    EXPECT_EQ(paths.GetPathSegments(path, 0, count, segments.data()), kNoErr);
    std::vector<AIReal> found;
    found.reserve(segments.size());
    for (const AIPathSegment& segment : segments) found.push_back(segment.p.x);
    return found;
  }
  AIErr set(AIArtHandle path, std::int16_t first, std::vector<AIPathSegment> segments) {
    return paths.SetPathSegments(path, first, static_cast<std::int16_t>(segments.size()), segments.data());
  }

  using Numbers = std::vector<AIReal>;
};

TEST_F(PathSuiteTest, GrowsAsFarAsTheLastSegmentWritten) {
  const AIArtHandle path = newArt(kPathArt);
  for (std::int16_t i = 0; i < 4; ++i) EXPECT_EQ(set(path, i, {corner(i, 0)}), kNoErr);
  EXPECT_EQ(xs(path), (Numbers{0, 1, 2, 3}));
  EXPECT_EQ(set(path, 3, {corner(13, 0), corner(14, 0), corner(15, 0)}), kNoErr);
  EXPECT_EQ(xs(path), (Numbers{0, 1, 2, 13, 14, 15}));
  EXPECT_EQ(set(path, 1, {corner(11, 0)}), kNoErr);
  EXPECT_EQ(xs(path), (Numbers{0, 11, 2, 13, 14, 15}));
  EXPECT_EQ(set(path, 7, {corner(7, 0)}), kNoSuchItemErr);
  AIPathSegment read[7];
  EXPECT_TRUE(
      each(kNoSuchItemErr, paths.GetPathSegments(path, 0, 7, read), paths.GetPathSegments(path, 6, 1, read)));
  EXPECT_EQ(paths.GetPathSegments(path, -1, 1, read), kBadParameterErr);
  EXPECT_EQ(set(path, -1, {corner(7, 0)}), kBadParameterErr);
  EXPECT_EQ(paths.SetPathSegments(path, 0, -1, nullptr), kBadParameterErr);
}

TEST_F(PathSuiteTest, TakesFiniteCoordinatesOnly) {
  const AIArtHandle path = newSquare({0, 0}, 1);
  for (AIRealPoint AIPathSegment::*point : {&AIPathSegment::p, &AIPathSegment::in, &AIPathSegment::out}) {
    AIPathSegment nan = corner(0, 0), infinite = nan;
    (nan.*point).x = NAN;
    (infinite.*point).y = INFINITY;
    EXPECT_TRUE(each(kBadParameterErr, set(path, 0, {corner(5, 5), nan}), set(path, 0, {infinite})));
  }
  EXPECT_EQ(xs(path), (Numbers{0, 1, 1, 0}));
}

// A path that grows segment by segment is changed in place, but never in what undo goes back to.
TEST_F(PathSuiteTest, UndoGoesBackToTheLengthAtEachStep) {
  const AIArtHandle path = newArt(kPathArt);
  for (std::int16_t step = 0; step < 3; ++step) {
    const host::UndoStep undoStep(host.documents(), "Grow");
    for (std::int16_t i = 0; i < 3; ++i) {
      const auto index = static_cast<std::int16_t>(3 * step + i);
      EXPECT_EQ(set(path, index, {corner(index, 0)}), kNoErr);
      EXPECT_EQ(paths.SetPathClosed(path, i % 2 == 0), kNoErr);
    }
  }
  ASSERT_TRUE(document->undo());
  EXPECT_EQ(set(path, 0, {corner(50, 0)}), kNoErr);  // outside any step
  ASSERT_TRUE(document->undo());
  EXPECT_EQ(xs(path), (Numbers{0, 1, 2, 3, 4, 5}));
  ASSERT_TRUE(document->undo());
  EXPECT_EQ(xs(path), (Numbers{0, 1, 2}));
  ASSERT_TRUE(document->redo());
  EXPECT_EQ(xs(path), (Numbers{0, 1, 2, 3, 4, 5}));
}

TEST_F(PathSuiteTest, StepsOutliveTheirDocuments) {
  auto other = makeDocument();
  host.documents().open(other, "other");
  const host::UndoStep step(host.documents(), "Close");
  host.documents().close(*other);
  other.reset();
}

class PathStyleTest : public HostFixture {
 protected:
  AIPathStyle styleOf(AIArtHandle painted) {
    AIPathStyle style{};
    EXPECT_EQ(styles.GetPathStyle(painted, &style), kNoErr);
    return style;
  }

  AIArtHandle path = newArt(kPathArt);
};

TEST_F(PathStyleTest, RefusesWhatCanNotBePainted) {
  const auto set = [this](auto change) {
    AIPathStyle style{};
    style.stroke.width = 1;
    change(style);
    return styles.SetPathStyle(path, &style);
  };
  EXPECT_TRUE(each(kBadParameterErr, set([](AIPathStyle& s) { s.stroke.width = -1; }),
                   set([](AIPathStyle& s) { s.stroke.width = NAN; }),
                   set([](AIPathStyle& s) { s.stroke.miterLimit = NAN; }),
                   set([](AIPathStyle& s) { s.fill.color.c.g.gray = NAN; }),
                   set([](AIPathStyle& s) { s.stroke.dash.offset = NAN; }),
                   set([](AIPathStyle& s) { s.stroke.dash.length = kMaxDashComponents + 1; }),
                   set([](AIPathStyle& s) { s.stroke.dash.length = -1; }),
                   set([](AIPathStyle& s) { s.stroke.cap = static_cast<AILineCap>(3); }),
                   set([](AIPathStyle& s) { s.stroke.join = static_cast<AILineJoin>(-1); }),
                   set([](AIPathStyle& s) { s.fill.color.kind = static_cast<AIColorTag>(7); }),
                   set([](AIPathStyle& s) { s.fill.color.kind = kCustomColor; }),
                   set([](AIPathStyle& s) { s.fill.color.kind = kGradient; })));
  EXPECT_EQ(styleOf(path).stroke.width, 0);
}

TEST_F(PathStyleTest, ACompoundPathHasOneStyle) {
  const AIArtHandle compound = newArt(kCompoundPathArt);
  const AIArtHandle inner = newArt(kPathArt, kPlaceInsideOnTop, compound);
  AIPathStyle style{};
  style.stroke.width = 3;
  ASSERT_EQ(styles.SetPathStyle(inner, &style), kNoErr);
  EXPECT_EQ(styleOf(compound).stroke.width, 3);
  EXPECT_EQ(styleOf(compound).stroke.miterLimit, 4) << "one below 1 is the default";
}

}  // namespace
