// Whatever handle comes in, a call answers with a code.

#include <type_traits>

#include "AIAnnotator.h"
#include "AIArtboard.h"
#include "AICustomColor.h"
#include "AIDocument.h"
#include "AIDocumentView.h"
#include "AIFilePath.h"
#include "AIFolders.h"
#include "AIHitTest.h"
#include "AIMenu.h"
#include "AINotifier.h"
#include "AIPreference.h"
#include "AISwatchGroup.h"
#include "AISwatchList.h"
#include "AITool.h"
#include "AIUser.h"
#include "HostFixture.h"
#include "SPAccess.h"
#include "SPBlocks.h"
#include "SPPlugins.h"

namespace {

class HandleTest : public HostFixture {
 protected:
  template <typename Result, typename... Args>
  static void expectRefused(Result (*entry)(Args...), int place) {
    EXPECT_EQ(entry(Args{}...) == Result{}, std::is_pointer_v<Result>) << "entry " << place;
  }

  // Calls every entry with zeros alone.
  template <typename... Entries>
  static void expectAllRefuseNull(const char* suite, Entries... entries) {
    const testing::ScopedTrace trace(__FILE__, __LINE__, suite);
    int place = 0;
    (expectRefused(entries, place++), ...);
  }

  void callEverythingWithNull();

  void expectUnknown(AIArtHandle handle);
};

void HandleTest::callEverythingWithNull() {
  const auto& basic = *host.basic();
  expectAllRefuseNull("basic", basic.AcquireSuite, basic.ReleaseSuite, basic.AllocateBlock);
  const auto& blocks = ACQUIRE(SPBlocksSuite);
  expectAllRefuseNull("blocks", blocks.AllocateBlock);
  const auto& access = ACQUIRE(SPAccessSuite);
  expectAllRefuseNull("access", access.GetPluginAccess);
  const auto& plugins = ACQUIRE(SPPluginsSuite);
  expectAllRefuseNull("plug-ins", plugins.SetPluginName, plugins.GetPluginFileSpecification);
  expectAllRefuseNull("strings", strings.New, strings.Dispose, strings.GetLength, strings.GetBytes);
  const auto& files = ACQUIRE(AIFilePathSuite);
  expectAllRefuseNull("file paths", files.New, files.Dispose, files.SetFromFileReference, files.GetFullPath);
  const auto& folders = ACQUIRE(AIFoldersSuite);
  expectAllRefuseNull("folders", folders.FindFolder);
  const auto& notifiers = ACQUIRE(AINotifierSuite);
  expectAllRefuseNull("notifiers", notifiers.AddNotifier, notifiers.SetNotifierActive);
  const auto& annotators = ACQUIRE(AIAnnotatorSuite);
  expectAllRefuseNull("annotators", annotators.AddAnnotator, annotators.SetAnnotatorActive);
  const auto& tools = ACQUIRE(AIToolSuite);
  expectAllRefuseNull("tools", tools.GetSelectedTool, tools.SetSelectedTool, tools.RestoreSelectedTool);
  const auto& user = ACQUIRE(AIUserSuite);
  expectAllRefuseNull("user", user.MessageAlert, user.ErrorAlert, user.CreateCursorResourceMgr,
                      user.DisposeCursorResourceMgr);
  const auto& menus = ACQUIRE(AIMenuSuite);
  expectAllRefuseNull("menus", menus.AddMenuItem, menus.AddMenuGroup, menus.AddMenuGroupAsSubMenu,
                      menus.CountMenuGroups, menus.GetNthMenuGroup, menus.GetMenuGroupName,
                      menus.UpdateMenuItemAutomatically, menus.CheckItem);
  const auto& keys = ACQUIRE(AIPreferenceSuite);
  expectAllRefuseNull("preferences", keys.PreferenceExists, keys.GetBooleanPreference,
                      keys.PutBooleanPreference, keys.GetIntegerPreference, keys.PutIntegerPreference,
                      keys.GetRealPreference, keys.PutRealPreference, keys.GetStringPreference,
                      keys.PutStringPreference);
  expectAllRefuseNull("layers", layers.CountLayers, layers.GetNthLayer, layers.GetNextLayer,
                      layers.GetLayerByTitle, layers.InsertLayer, layers.DeleteLayer, layers.GetLayerTitle,
                      layers.SetLayerTitle, layers.GetLayerVisible, layers.SetLayerVisible,
                      layers.GetLayerPreview, layers.GetLayerEditable, layers.SetLayerEditable,
                      layers.GetLayerPrinted, layers.GetLayerSelected, layers.LayerHasArt,
                      layers.LayerHasSelectedArt, layers.GetLayerIsTemplate, layers.GetLayerDimPlacedImages);
  const auto& colors = ACQUIRE(AICustomColorSuite);
  expectAllRefuseNull("colours", colors.NewCustomColor, colors.GetCustomColor, colors.GetCustomColorName);
  const auto& swatches = ACQUIRE(AISwatchListSuite);
  expectAllRefuseNull("swatches", swatches.CountSwatches, swatches.GetNthSwatch,
                      swatches.GetSwatchByNameAndType, swatches.GetAIColor, swatches.GetSwatchName,
                      swatches.SetSwatchName);
  const auto& groups = ACQUIRE(AISwatchGroupSuite);
  expectAllRefuseNull("swatch groups", groups.GetGroupByName, groups.SetGroupName, groups.AddSwatch);
  const auto& boards = ACQUIRE(AIArtboardSuite);
  expectAllRefuseNull("artboards", boards.GetArtboardList, boards.DisposeArtboardList, boards.GetCount,
                      boards.GetActive, boards.GetArtboardProperties, boards.DisposeArtboardProperties,
                      boards.GetPosition, boards.GetName);
  const auto& documents = ACQUIRE(AIDocumentSuite);
  expectAllRefuseNull("documents", documents.GetDocument, documents.GetDocumentSetup,
                      documents.GetDocumentOrigin, documents.GetDocumentScale);
  const auto& views = ACQUIRE(AIDocumentViewSuite);
  expectAllRefuseNull("views", views.GetNthDocumentView, views.GetDocumentViewBounds,
                      views.GetDocumentViewZoom, views.SetDocumentViewZoom, views.SetDocumentViewCenter,
                      views.ArtworkPointToViewPoint);
  const auto& hits = ACQUIRE(AIHitTestSuite);
  expectAllRefuseNull("hit tests", hits.HitTest, hits.GetHitData, hits.GetHitArt);
}

TEST_F(HandleTest, NullIsRefusedByEveryEntryWithAndWithoutADocument) {
  callEverythingWithNull();
  EXPECT_EQ(document->undoCount(), 0U);
  EXPECT_EQ(document->artSlots(), 1U);  // the layer's root group
  host.documents().close(*document);
  callEverythingWithNull();
}

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
