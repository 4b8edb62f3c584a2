#include <gtest/gtest.h>

#include <vector>

#include "HostFixture.h"

namespace {

class ArtSuiteTest : public HostFixture {
 protected:
  AIArtHandle root() {
    AIArtHandle group = nullptr;
    EXPECT_EQ(art.GetFirstArtOfLayer(nullptr, &group), kNoErr);
    return group;
  }
  std::vector<AIArtHandle> childrenOf(AIArtHandle group) {
    std::vector<AIArtHandle> children;
    AIArtHandle child = nullptr;
    EXPECT_EQ(art.GetArtFirstChild(group, &child), kNoErr);
    while (child != nullptr) {
      children.push_back(child);
      EXPECT_EQ(art.GetArtSibling(child, &child), kNoErr);
    }
    return children;
  }
  AIErr tryNewArt(AIArtType type, AIPaintOrder order, AIArtHandle prep) {
    AIArtHandle made = nullptr;
    return art.NewArt(type, order, prep, &made);
  }

  using Handles = std::vector<AIArtHandle>;
};

TEST_F(ArtSuiteTest, PaintOrderRunsFromTheTop) {
  const AIArtHandle a = newArt(kPathArt);
  const AIArtHandle b = newArt(kPathArt);
  const AIArtHandle c = newArt(kPathArt, kPlaceBelow, b);
  const AIArtHandle d = newArt(kPathArt, kPlaceAbove, a);
  const AIArtHandle e = newArt(kPathArt, kPlaceInsideOnBottom, root());
  const AIArtHandle f = newArt(kPathArt, kPlaceInsideOnTop, root());
  EXPECT_EQ(childrenOf(root()), (Handles{f, b, c, d, a, e}));
}

TEST_F(ArtSuiteTest, TheTreeKnowsItsParents) {
  const AIArtHandle group = newArt(kGroupArt);
  const AIArtHandle path = newArt(kPathArt, kPlaceInsideOnTop, group);
  AIArtHandle parent = nullptr;
  EXPECT_EQ(art.GetArtParent(path, &parent), kNoErr);
  EXPECT_EQ(parent, group);
  EXPECT_EQ(art.GetArtParent(group, &parent), kNoErr);
  EXPECT_EQ(parent, root());
  EXPECT_EQ(art.GetArtParent(root(), &parent), kNoErr);
  EXPECT_EQ(parent, nullptr);
  AILayerHandle layer = nullptr;
  EXPECT_EQ(art.GetLayerOfArt(path, &layer), kNoErr);
  EXPECT_EQ(layer, topLayer());
  std::int16_t type = 0;
  EXPECT_EQ(art.GetArtType(group, &type), kNoErr);
  EXPECT_EQ(type, kGroupArt);
}

TEST_F(ArtSuiteTest, OnlyGroupsAndCompoundPathsHoldArt) {
  const AIArtHandle path = newArt(kPathArt);
  const AIArtHandle compound = newArt(kCompoundPathArt);
  const AIArtHandle group = newArt(kGroupArt);
  EXPECT_EQ(tryNewArt(kPathArt, kPlaceInsideOnTop, path), kWrongKindErr);
  EXPECT_EQ(tryNewArt(kPathArt, kPlaceInsideOnTop, compound), kNoErr);
  EXPECT_EQ(tryNewArt(kGroupArt, kPlaceInsideOnTop, compound), kWrongKindErr);
  EXPECT_EQ(tryNewArt(kPathArt, kPlaceAbove, root()), kWrongKindErr);
  EXPECT_EQ(tryNewArt(kTextFrameArt, kPlaceInsideOnTop, group), kBadParameterErr);
  EXPECT_EQ(tryNewArt(kPathArt, kPlaceAboveAll, group), kBadParameterErr);
  EXPECT_EQ(tryNewArt(kPathArt, static_cast<AIPaintOrder>(9), group), kBadParameterErr);
  EXPECT_EQ(art.NewArt(kPathArt, kPlaceAboveAll, nullptr, nullptr), kBadParameterErr);
}

TEST_F(ArtSuiteTest, MovesWithinADocument) {
  const AIArtHandle group = newArt(kGroupArt);
  const AIArtHandle inner = newArt(kGroupArt, kPlaceInsideOnTop, group);
  const AIArtHandle path = newArt(kPathArt);
  EXPECT_EQ(art.ReorderArt(path, kPlaceInsideOnBottom, inner), kNoErr);
  EXPECT_EQ(childrenOf(inner), Handles{path});
  EXPECT_EQ(art.ReorderArt(group, kPlaceInsideOnTop, inner), kBadParameterErr);
  EXPECT_EQ(art.ReorderArt(group, kPlaceAbove, group), kBadParameterErr);
  EXPECT_EQ(art.ReorderArt(root(), kPlaceInsideOnTop, inner), kBadParameterErr);
  EXPECT_EQ(art.ReorderArt(path, kPlaceAboveAll, nullptr), kNoErr);
  EXPECT_EQ(childrenOf(root()), (Handles{path, group}));
}

TEST_F(ArtSuiteTest, LockedAndHiddenLayersAreLeftAlone) {
  const AIArtHandle locked = newSquare({0, 0}, 10);
  const AILayerHandle layer = topLayer();
  AILayerHandle open = nullptr;
  ASSERT_EQ(layers.InsertLayer(layer, kPlaceBelow, &open), kNoErr);
  AIArtHandle openRoot = nullptr;
  ASSERT_EQ(art.GetFirstArtOfLayer(open, &openRoot), kNoErr);
  const AIArtHandle movable = newArt(kPathArt, kPlaceInsideOnTop, openRoot);

  const auto expectLocked = [&] {
    const AIPathStyle style{};
    const AIPathSegment segment{};
    EXPECT_EQ(tryNewArt(kPathArt, kPlaceAbove, locked), kLayerLockedErr);
    EXPECT_EQ(art.DisposeArt(locked), kLayerLockedErr);
    EXPECT_EQ(art.ReorderArt(locked, kPlaceInsideOnTop, openRoot), kLayerLockedErr);
    EXPECT_EQ(art.ReorderArt(movable, kPlaceAbove, locked), kLayerLockedErr);
    EXPECT_EQ(paths.SetPathSegments(locked, 0, 1, &segment), kLayerLockedErr);
    EXPECT_EQ(paths.SetPathClosed(locked, 0), kLayerLockedErr);
    EXPECT_EQ(styles.SetPathStyle(locked, &style), kLayerLockedErr);
  };
  ASSERT_EQ(layers.SetLayerEditable(layer, 0), kNoErr);
  expectLocked();
  ASSERT_EQ(layers.SetLayerEditable(layer, 1), kNoErr);
  ASSERT_EQ(layers.SetLayerVisible(layer, 0), kNoErr);
  expectLocked();
  ASSERT_EQ(layers.SetLayerVisible(layer, 1), kNoErr);
  EXPECT_EQ(art.DisposeArt(locked), kNoErr);
}

TEST_F(ArtSuiteTest, TheCurrentLayerCanBeLockedToo) {
  ASSERT_EQ(layers.SetLayerEditable(topLayer(), 0), kNoErr);
  EXPECT_EQ(tryNewArt(kPathArt, kPlaceAboveAll, nullptr), kLayerLockedErr);
}

TEST_F(ArtSuiteTest, NamesAreUtf8) {
  const AIArtHandle path = newArt(kPathArt);
  const AIUnicodeStringHandle out = text("before");
  EXPECT_EQ(art.GetArtName(path, out), kNoErr);
  EXPECT_EQ(read(out), "");
  EXPECT_EQ(art.SetArtName(path, text("Schnitt \xC3\xA4\xFF")), kNoErr);
  EXPECT_EQ(art.GetArtName(path, out), kNoErr);
  EXPECT_EQ(read(out), "Schnitt \xC3\xA4\xEF\xBF\xBD");
}

TEST_F(ArtSuiteTest, BoundsGoThroughTheMatrix) {
  const AIArtHandle square = newSquare({10, 20}, 30);
  fill(square);
  AIRealRect bounds{};
  ASSERT_EQ(art.GetArtTransformBounds(square, nullptr, kNoStrokeBounds, &bounds), kNoErr);
  EXPECT_EQ(bounds.left, 10);
  EXPECT_EQ(bounds.top, 50);
  EXPECT_EQ(bounds.right, 40);
  EXPECT_EQ(bounds.bottom, 20);
  const AIRealMatrix twice{2, 0, 0, 2, 5, 0};
  ASSERT_EQ(art.GetArtTransformBounds(square, &twice, kNoStrokeBounds, &bounds), kNoErr);
  EXPECT_EQ(bounds.left, 25);
  EXPECT_EQ(bounds.top, 100);
}

TEST_F(ArtSuiteTest, BoundsOfNothingAreInverted) {
  AIRealRect bounds{};
  ASSERT_EQ(art.GetArtTransformBounds(newArt(kGroupArt), nullptr, 80, &bounds), kNoErr);
  EXPECT_GT(bounds.left, bounds.right);
  EXPECT_GT(bounds.bottom, bounds.top);
}

}  // namespace
