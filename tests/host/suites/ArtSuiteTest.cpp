#include <vector>

#include "AIMatchingArt.h"
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

TEST_F(ArtSuiteTest, CopiesWithAllThatArtHolds) {
  const AIArtHandle group = newArt(kGroupArt);
  const AIArtHandle compound = newArt(kCompoundPathArt, kPlaceInsideOnTop, group);
  const AIArtHandle part = newArt(kPathArt, kPlaceInsideOnTop, compound);
  fill(compound);
  AIArtHandle copy = nullptr;
  struct Row {
    AIArtHandle what;
    AIPaintOrder order;
    AIArtHandle prep;
    AIErr code;
  };
  for (const Row& row : {Row{group, kPlaceInsideOnTop, group, kBadParameterErr},
                         {group, kPlaceAbove, compound, kBadParameterErr},
                         {group, kPlaceInsideOnTop, compound, kBadParameterErr},
                         {compound, kPlaceInsideOnTop, part, kBadParameterErr},
                         {group, kPlaceAbove, root(), kWrongKindErr},
                         {nullptr, kPlaceAbove, group, kBadParameterErr},
                         {part, kPlaceAbove, group, kNoErr},
                         {group, kPlaceAbove, group, kNoErr}}) {
    EXPECT_EQ(art.DuplicateArt(row.what, row.order, row.prep, &copy), row.code);
  }
  const Handles children = childrenOf(root());
  ASSERT_EQ(children.size(), 3U);
  EXPECT_EQ(children[1], copy);
  AIPathStyle style{};
  EXPECT_EQ(styles.GetPathStyle(children[0], &style), kNoErr) << "out of its compound path it has a style";
  EXPECT_EQ(style.fillPaint, 1);
  ASSERT_EQ(childrenOf(copy).size(), 1U);
  EXPECT_EQ(childrenOf(childrenOf(copy)[0]).size(), 1U);
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
