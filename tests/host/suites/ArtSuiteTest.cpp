#include <vector>

#include "AIMatchingArt.h"
#include "HostFixture.h"
#include "SPBlocks.h"

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

  AILayerHandle upper = nullptr;
  EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &upper), kNoErr);
  AIArtHandle upperRoot = nullptr;
  EXPECT_EQ(art.GetFirstArtOfLayer(upper, &upperRoot), kNoErr);
  AIArtHandle lowerRoot = nullptr;
  EXPECT_EQ(art.GetArtParent(group, &lowerRoot), kNoErr);
  EXPECT_EQ(art.DuplicateArt(lowerRoot, kPlaceBelow, upperRoot, &copy), kNoErr) << "a whole layer";
  EXPECT_EQ(document->state().layers.size(), 3U);
  EXPECT_EQ(document->layer(document->state().layers[1])->title, "Layer 1");
  EXPECT_EQ(childrenOf(copy).size(), 3U);
}

TEST_F(ArtSuiteTest, SelectedArtComesInABlockOfItsOwn) {
  const auto& matching = ACQUIRE(AIMatchingArtSuite);
  const auto& blocks = ACQUIRE(SPBlocksSuite);
  AIArtHandle* found = nullptr;
  std::int32_t count = -1;
  EXPECT_EQ(matching.GetSelectedArt(&found, &count), kNoErr);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(found, nullptr);
  newArt(kPathArt);
  const AIArtHandle path = newArt(kPathArt, kPlaceInsideOnTop, newArt(kGroupArt));
  EXPECT_EQ(art.SetArtUserAttr(path, kArtSelected, kArtSelected), kNoErr);
  EXPECT_EQ(matching.GetSelectedArt(&found, &count), kNoErr);
  ASSERT_EQ(count, 1);
  EXPECT_EQ(found[0], path);
  EXPECT_EQ(blocks.FreeBlock(found), kNoErr);
  EXPECT_EQ(matching.GetSelectedArt(nullptr, &count), kNoErr);
  EXPECT_EQ(matching.GetSelectedArt(&found, nullptr), kBadParameterErr);
  host.documents().close(*document);
  EXPECT_EQ(matching.GetSelectedArt(nullptr, &count), kNoDocumentErr);
}

TEST_F(ArtSuiteTest, GroupsAreSelectedWithWhatTheyHold) {
  const AIArtHandle group = newArt(kGroupArt);
  const AIArtHandle path = newArt(kPathArt, kPlaceInsideOnTop, group);
  const AIArtHandle compound = newArt(kCompoundPathArt, kPlaceInsideOnTop, group);
  const AIArtHandle part = newArt(kPathArt, kPlaceInsideOnTop, compound);
  const auto selected = [&] {
    Handles found;
    for (const AIArtHandle handle : {root(), group, path, compound, part}) {
      std::int32_t attributes = 0;
      EXPECT_EQ(art.GetArtUserAttr(handle, kArtSelected | kArtIsClipMask, &attributes), kNoErr);
      if (attributes == kArtSelected) found.push_back(handle);
    }
    return found;
  };
  const struct {
    AIArtHandle what;
    std::int32_t attributes;
    Handles selected;
  } table[] = {
      {part, kArtSelected, {root(), group, compound, part}},
      {group, kArtSelected, {root(), group, path, compound, part}},
      {compound, 0, {root(), group, path}},
      {root(), 0, {}},
  };
  for (const auto& row : table) {
    EXPECT_EQ(art.SetArtUserAttr(row.what, kArtSelected, row.attributes), kNoErr);
    EXPECT_EQ(selected(), row.selected);
  }
  EXPECT_EQ(art.SetArtUserAttr(path, kArtSelected | kArtLocked, kArtLocked), kBadParameterErr);
  ASSERT_EQ(layers.SetLayerEditable(topLayer(), 0), kNoErr);
  EXPECT_EQ(art.SetArtUserAttr(path, kArtSelected, kArtSelected), kLayerLockedErr);
  EXPECT_EQ(selected(), Handles{});
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
