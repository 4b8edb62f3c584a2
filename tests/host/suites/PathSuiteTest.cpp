#include <cmath>
#include <limits>
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
  EXPECT_EQ(set(path, -1, {corner(7, 0)}), kBadParameterErr);
  EXPECT_EQ(paths.SetPathSegments(path, 0, -1, nullptr), kBadParameterErr);
}

TEST_F(PathSuiteTest, ReadsOnlyWhatIsThere) {
  const AIArtHandle path = newSquare({0, 0}, 1);
  AIPathSegment segments[5];
  EXPECT_EQ(paths.GetPathSegments(path, 2, 2, segments), kNoErr);
  EXPECT_EQ(segments[0].p.x, 1);
  EXPECT_EQ(segments[1].p.y, 1);
  EXPECT_EQ(paths.GetPathSegments(path, 0, 5, segments), kNoSuchItemErr);
  EXPECT_EQ(paths.GetPathSegments(path, 4, 1, segments), kNoSuchItemErr);
  EXPECT_EQ(paths.GetPathSegments(path, -1, 1, segments), kBadParameterErr);
}

TEST_F(PathSuiteTest, TakesFiniteCoordinatesOnly) {
  const AIArtHandle path = newSquare({0, 0}, 1);
  for (int place = 0; place < 6; ++place) {
    AIPathSegment segment = corner(0, 0);
    AIReal* numbers[] = {&segment.p.x,  &segment.p.y,   &segment.in.x,
                         &segment.in.y, &segment.out.x, &segment.out.y};
    *numbers[place] = place % 2 == 0 ? std::nan("") : INFINITY;
    EXPECT_EQ(set(path, 0, {corner(5, 5), segment}), kBadParameterErr) << place;
  }
  EXPECT_EQ(xs(path), (Numbers{0, 1, 1, 0}));
}

TEST_F(PathSuiteTest, IsForPathsAlone) {
  const AIPathSegment segment{};
  AIBoolean closed = 0;
  std::int16_t count = 0;
  AIPathStyle style{};
  const AIArtHandle group = newArt(kGroupArt);
  EXPECT_THAT(codes(paths.GetPathSegmentCount(group, &count), paths.SetPathSegments(group, 0, 1, &segment),
                    paths.GetPathClosed(group, &closed), paths.SetPathClosed(group, 1),
                    styles.GetPathStyle(group, &style), styles.SetPathStyle(group, &style),
                    paths.SetPathClosed(newArt(kCompoundPathArt), 1)),
              testing::Each(kWrongKindErr));
}

TEST_F(PathSuiteTest, AMessageIsOneUndoStep) {
  AIArtHandle path = nullptr;
  {
    const host::UndoStep step(host.documents(), "Add Square");
    path = newSquare({0, 0}, 10);
    fill(path);
  }
  EXPECT_EQ(document->undoCount(), 1U);
  EXPECT_EQ(document->undoName(), "Add Square");
  ASSERT_TRUE(document->undo());
  std::int16_t count = 0;
  EXPECT_EQ(paths.GetPathSegmentCount(path, &count), kBadParameterErr);
  ASSERT_TRUE(document->redo());
  EXPECT_EQ(xs(path), (Numbers{0, 10, 10, 0}));
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

TEST_F(PathStyleTest, IsKeptAsSet) {
  AIPathStyle style{};
  ASSERT_EQ(styles.SetPathStyle(path, &style), kNoErr);
  EXPECT_EQ(styleOf(path).stroke.miterLimit, 4) << "one below 1 is the default";
  style.stroke.color.kind = kThreeColor;
  style.stroke.color.c.rgb = {0.25, 0.5, 1};
  style.stroke.dash = {2, 1.5, {3, 4}};
  style.stroke.join = kAIBevelJoin;
  style.stroke.miterLimit = 2;
  style.evenodd = 1;
  ASSERT_EQ(styles.SetPathStyle(path, &style), kNoErr);
  const AIPathStyle kept = styleOf(path);
  EXPECT_EQ(kept.stroke.color.c.rgb.green, 0.5);
  EXPECT_EQ(kept.stroke.dash.array[1], 4);
  EXPECT_EQ(kept.stroke.join, kAIBevelJoin);
  EXPECT_EQ(kept.stroke.miterLimit, 2);
  EXPECT_EQ(kept.evenodd, 1);
}

TEST_F(PathStyleTest, RefusesWhatCanNotBePainted) {
  void (*const changes[])(AIPathStyle&) = {
      [](AIPathStyle& s) { s.stroke.width = -1; },
      [](AIPathStyle& s) { s.stroke.width = std::nan(""); },
      [](AIPathStyle& s) { s.stroke.miterLimit = std::nan(""); },
      [](AIPathStyle& s) { s.fill.color.c.g.gray = std::nan(""); },
      [](AIPathStyle& s) { s.stroke.dash.offset = std::nan(""); },
      [](AIPathStyle& s) { s.stroke.dash.length = kMaxDashComponents + 1; },
      [](AIPathStyle& s) { s.stroke.dash.length = -1; },
      [](AIPathStyle& s) { s.stroke.cap = static_cast<AILineCap>(3); },
      [](AIPathStyle& s) { s.stroke.join = static_cast<AILineJoin>(-1); },
      [](AIPathStyle& s) { s.fill.color.kind = static_cast<AIColorTag>(7); },
      [](AIPathStyle& s) { s.fill.color.kind = kCustomColor; },
      [](AIPathStyle& s) { s.fill.color.kind = kGradient; },
  };
  for (const auto& change : changes) {
    AIPathStyle style{};
    style.stroke.width = 1;
    change(style);
    EXPECT_EQ(styles.SetPathStyle(path, &style), kBadParameterErr) << &change - changes;
  }
  EXPECT_EQ(styleOf(path).stroke.width, 0);
}

TEST_F(PathStyleTest, CustomColoursAreTheDocumentsOwn) {
  const auto& colors = acquire<AICustomColorSuite>(kAICustomColorSuite, kAICustomColorSuiteVersion);
  const AICustomColor definition{};
  AIPathStyle style{};
  style.fill.color.kind = kCustomColor;
  ASSERT_EQ(colors.NewCustomColor(&definition, text("Cut"), &style.fill.color.c.c.color), kNoErr);
  EXPECT_EQ(styles.SetPathStyle(path, &style), kNoErr);
  const auto other = makeDocument();
  host.documents().open(other, "other");
  EXPECT_EQ(styles.SetPathStyle(newArt(kPathArt), &style), kBadParameterErr);
  EXPECT_EQ(styles.SetPathStyle(path, &style), kNoErr);  // its own document is still open
}

TEST_F(PathStyleTest, ACompoundPathHasOneStyle) {
  const AIArtHandle compound = newArt(kCompoundPathArt);
  const AIArtHandle inner = newArt(kPathArt, kPlaceInsideOnTop, compound);
  AIPathStyle style{};
  style.stroke.width = 3;
  ASSERT_EQ(styles.SetPathStyle(inner, &style), kNoErr);
  EXPECT_EQ(styleOf(compound).stroke.width, 3);
}

}  // namespace
