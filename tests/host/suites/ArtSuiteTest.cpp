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

TEST_F(ArtSuiteTest, OnlyGroupsAndCompoundPathsHoldArt) {
  const AIArtHandle path = newArt(kPathArt);
  const AIArtHandle compound = newArt(kCompoundPathArt);
  EXPECT_EQ(tryNewArt(kPathArt, kPlaceInsideOnTop, compound), kNoErr);
  EXPECT_TRUE(each(kWrongKindErr, tryNewArt(kPathArt, kPlaceInsideOnTop, path),
                   tryNewArt(kGroupArt, kPlaceInsideOnTop, compound),
                   tryNewArt(kPathArt, kPlaceAbove, root())));
  EXPECT_TRUE(each(kBadParameterErr, tryNewArt(kTextFrameArt, kPlaceInsideOnTop, root()),
                   tryNewArt(kPathArt, kPlaceAboveAll, root()),
                   tryNewArt(kPathArt, static_cast<AIPaintOrder>(9), root()),
                   art.NewArt(kPathArt, kPlaceAboveAll, nullptr, nullptr)));
}

TEST_F(ArtSuiteTest, MovesWithinADocument) {
  const AIArtHandle group = newArt(kGroupArt);
  const AIArtHandle inner = newArt(kGroupArt, kPlaceInsideOnTop, group);
  const AIArtHandle path = newArt(kPathArt);
  EXPECT_EQ(art.ReorderArt(path, kPlaceInsideOnBottom, inner), kNoErr);
  EXPECT_EQ(childrenOf(inner), Handles{path});
  for (const auto& [child, expected] : {std::pair(path, inner), {root(), nullptr}}) {
    AIArtHandle parent = child;
    EXPECT_EQ(art.GetArtParent(child, &parent), kNoErr);
    EXPECT_EQ(parent, expected);
  }
  EXPECT_EQ(art.ReorderArt(group, kPlaceInsideOnTop, inner), kBadParameterErr);
  EXPECT_EQ(art.ReorderArt(group, kPlaceAbove, group), kBadParameterErr);
  EXPECT_EQ(art.ReorderArt(root(), kPlaceInsideOnTop, inner), kBadParameterErr);
  EXPECT_EQ(art.ReorderArt(path, kPlaceAboveAll, nullptr), kNoErr);
  EXPECT_EQ(childrenOf(root()), (Handles{path, group}));
}

TEST_F(ArtSuiteTest, LockedAndHiddenLayersAreLeftAlone) {
  const AIArtHandle locked = newSquare({0, 0}, 10);
  const AILayerHandle layer = topLayer();
  ASSERT_EQ(layers.SetLayerEditable(layer, 0), kNoErr);
  EXPECT_EQ(tryNewArt(kPathArt, kPlaceAboveAll, nullptr), kLayerLockedErr) << "the current layer";
  ASSERT_EQ(layers.SetLayerEditable(layer, 1), kNoErr);
  AILayerHandle open = nullptr;
  ASSERT_EQ(layers.InsertLayer(layer, kPlaceBelow, &open), kNoErr);
  AIArtHandle openRoot = nullptr;
  ASSERT_EQ(art.GetFirstArtOfLayer(open, &openRoot), kNoErr);
  const AIArtHandle movable = newArt(kPathArt, kPlaceInsideOnTop, openRoot);
  const AIPathStyle style{};
  const AIPathSegment segment{};
  for (const auto set : {layers.SetLayerEditable, layers.SetLayerVisible}) {
    ASSERT_EQ(set(layer, 0), kNoErr);
    EXPECT_TRUE(each(kLayerLockedErr, tryNewArt(kPathArt, kPlaceAbove, locked), art.DisposeArt(locked),
                     art.ReorderArt(locked, kPlaceInsideOnTop, openRoot),
                     art.ReorderArt(movable, kPlaceAbove, locked),
                     paths.SetPathSegments(locked, 0, 1, &segment), paths.SetPathClosed(locked, 0),
                     styles.SetPathStyle(locked, &style)));
    ASSERT_EQ(set(layer, 1), kNoErr);
  }
  EXPECT_EQ(art.DisposeArt(locked), kNoErr);
}

}  // namespace
