// Whatever handle comes in, a call answers with a code.
#include "HostFixture.h"

namespace {

class HandleTest : public HostFixture {
 protected:
  void expectUnknown(AIArtHandle handle);
};

// Gives the handle to all entries of the art, path and style suites.
void HandleTest::expectUnknown(AIArtHandle handle) {
  AIArtHandle other = nullptr;
  AILayerHandle layer = nullptr;
  std::int16_t number = 0;
  std::int32_t attributes = 0;
  AIBoolean flag = 0;
  AIRealRect bounds{};
  AIPathSegment segment{};
  AIPathStyle style{};
  const AIUnicodeStringHandle name = text("name");
  EXPECT_TRUE(each(kBadParameterErr, art.NewArt(kPathArt, kPlaceAbove, handle, &other),
                   art.DisposeArt(handle), art.ReorderArt(handle, kPlaceAboveAll, nullptr),
                   art.GetArtFirstChild(handle, &other), art.GetArtSibling(handle, &other),
                   art.GetArtParent(handle, &other), art.GetArtType(handle, &number),
                   art.GetLayerOfArt(handle, &layer), art.GetArtUserAttr(handle, kArtSelected, &attributes),
                   art.SetArtUserAttr(handle, kArtSelected, kArtSelected), art.GetArtName(handle, name),
                   art.SetArtName(handle, name), art.GetArtTransformBounds(handle, nullptr, 0, &bounds),
                   paths.GetPathSegmentCount(handle, &number), paths.GetPathSegments(handle, 0, 1, &segment),
                   paths.SetPathSegments(handle, 0, 1, &segment), paths.GetPathClosed(handle, &flag),
                   paths.SetPathClosed(handle, 1), styles.GetPathStyle(handle, &style),
                   styles.SetPathStyle(handle, &style)));
  EXPECT_EQ(other, nullptr);
}

TEST_F(HandleTest, OfDeletedArtAndLayersAreUnknown) {
  const AIArtHandle group = newArt(kGroupArt);
  const AIArtHandle inside = newArt(kPathArt, kPlaceInsideOnTop, group);
  const AIArtHandle path = newArt(kPathArt);
  ASSERT_EQ(art.DisposeArt(group), kNoErr);
  const AILayerHandle layer = topLayer();
  AILayerHandle other = nullptr;
  ASSERT_EQ(layers.InsertLayer(nullptr, kPlaceBelowAll, &other), kNoErr);
  ASSERT_EQ(layers.DeleteLayer(layer), kNoErr);
  for (const AIArtHandle gone : {group, inside, path}) expectUnknown(gone);
  EXPECT_EQ(layers.SetLayerVisible(layer, 0), kBadParameterErr);
  EXPECT_EQ(layers.GetNextLayer(layer, &other), kBadParameterErr);
}

TEST_F(HandleTest, OfOtherKindsAndOfNothingAreUnknown) {
  expectUnknown(nullptr);
  expectUnknown(reinterpret_cast<AIArtHandle>(topLayer()));
  expectUnknown(reinterpret_cast<AIArtHandle>(this));
  expectUnknown(host::makeHandle<AIArtHandle>(host::HandleKind::Art, document->serial(), 4711));
}

TEST_F(HandleTest, OfAClosedDocumentAreUnknown) {
  const AIArtHandle path = newArt(kPathArt);
  const AILayerHandle layer = topLayer();
  host.documents().close(*document);
  expectUnknown(path);
  AIBoolean flag = 0;
  EXPECT_EQ(layers.GetLayerVisible(layer, &flag), kNoDocumentErr);
  const auto next = makeDocument();
  host.documents().open(next, "next");
  expectUnknown(path);
  EXPECT_EQ(layers.GetLayerVisible(layer, &flag), kBadParameterErr);
}

TEST_F(HandleTest, OfAnotherOpenDocumentWorkThere) {
  const AIArtHandle path = newArt(kPathArt);
  const auto other = makeDocument();
  host.documents().open(other, "other");
  AIArtHandle beside = nullptr;
  EXPECT_EQ(art.NewArt(kPathArt, kPlaceAbove, path, &beside), kNoErr);
  EXPECT_EQ(other->artSlots(), 1U);
  AIArtHandle elsewhere = nullptr;
  ASSERT_EQ(art.NewArt(kPathArt, kPlaceAboveAll, nullptr, &elsewhere), kNoErr);
  EXPECT_EQ(art.ReorderArt(path, kPlaceAbove, elsewhere), kBadParameterErr);
}

TEST_F(HandleTest, OfDisposedOfStringsAreStale) {
  const AIUnicodeStringHandle string = text("once");
  ASSERT_EQ(strings.Dispose(string), kNoErr);
  text("a new string that could have taken the place");
  std::size_t length = 0;
  EXPECT_TRUE(each(kBadParameterErr, strings.GetLength(string, &length), strings.Dispose(string),
                   layers.SetLayerTitle(topLayer(), string)));
}

}  // namespace
