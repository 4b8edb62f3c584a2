#include <gtest/gtest.h>

#include <vector>

#include "HostFixture.h"

namespace {

class LayerSuiteTest : public HostFixture {
 protected:
  AILayerHandle insert(AILayerHandle reference, AIPaintOrder order, const char* title) {
    AILayerHandle layer = nullptr;
    EXPECT_EQ(layers.InsertLayer(reference, order, &layer), kNoErr);
    EXPECT_EQ(layers.SetLayerTitle(layer, text(title)), kNoErr);
    return layer;
  }
  std::vector<std::string> titles() {
    std::vector<std::string> found;
    AILayerHandle layer = topLayer();
    while (layer != nullptr) {
      const AIUnicodeStringHandle title = text();
      EXPECT_EQ(layers.GetLayerTitle(layer, title), kNoErr);
      found.push_back(read(title));
      EXPECT_EQ(layers.GetNextLayer(layer, &layer), kNoErr);
    }
    return found;
  }
  AILayerHandle byTitle(const char* title) {
    AILayerHandle layer = topLayer();
    EXPECT_EQ(layers.GetLayerByTitle(text(title), &layer), kNoErr);
    return layer;
  }
  static bool ask(AIErr (*entry)(AILayerHandle, AIBoolean*), AILayerHandle layer) {
    AIBoolean answer = 2;
    EXPECT_EQ(entry(layer, &answer), kNoErr);
    EXPECT_LT(answer, 2);
    return answer == 1;
  }

  using Titles = std::vector<std::string>;
};

TEST_F(LayerSuiteTest, InsertsWhereTold) {
  const AILayerHandle first = topLayer();
  insert(nullptr, kPlaceAboveAll, "top");
  insert(nullptr, kPlaceBelowAll, "bottom");
  insert(first, kPlaceAbove, "above");
  insert(first, kPlaceBelow, "below");
  EXPECT_EQ(titles(), (Titles{"top", "above", "Layer 1", "below", "bottom"}));
  std::int32_t count = 0;
  EXPECT_EQ(layers.CountLayers(&count), kNoErr);
  EXPECT_EQ(count, 5);
}

TEST_F(LayerSuiteTest, RefusesOrdersThatMakeNoSense) {
  AILayerHandle layer = nullptr;
  for (const AIPaintOrder order : {kPlaceInsideOnTop, kPlaceInsideOnBottom, AIPaintOrder{}}) {
    EXPECT_EQ(layers.InsertLayer(topLayer(), order, &layer), kBadParameterErr);
  }
  EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAbove, &layer), kBadParameterErr);
  EXPECT_EQ(layers.InsertLayer(topLayer(), kPlaceAboveAll, &layer), kBadParameterErr);
  EXPECT_EQ(titles(), Titles{"Layer 1"});
}

TEST_F(LayerSuiteTest, IndicesEnd) {
  AILayerHandle layer = nullptr;
  EXPECT_EQ(layers.GetNthLayer(-1, &layer), kNoSuchItemErr);
  EXPECT_EQ(layers.GetNthLayer(1, &layer), kNoSuchItemErr);
  EXPECT_EQ(layer, nullptr);
}

TEST_F(LayerSuiteTest, FindsTheTopmostOfExactlyThatTitle) {
  insert(nullptr, kPlaceBelowAll, "Regmark");
  const AILayerHandle upper = insert(nullptr, kPlaceAboveAll, "Regmark");
  EXPECT_EQ(byTitle("Regmark"), upper);
  EXPECT_EQ(byTitle("regmark"), nullptr);
  EXPECT_EQ(byTitle("Regmark "), nullptr);
}

TEST_F(LayerSuiteTest, KeepsTheLastLayer) {
  const AILayerHandle first = topLayer();
  EXPECT_EQ(layers.DeleteLayer(first), kBadParameterErr);
  insert(nullptr, kPlaceAboveAll, "new");
  EXPECT_EQ(layers.DeleteLayer(first), kNoErr);
  EXPECT_EQ(titles(), Titles{"new"});
}

TEST_F(LayerSuiteTest, AnswersAboutALayer) {
  const AILayerHandle layer = insert(nullptr, kPlaceAboveAll, "cut");
  EXPECT_TRUE(ask(layers.GetLayerVisible, layer));
  EXPECT_TRUE(ask(layers.GetLayerEditable, layer));
  EXPECT_TRUE(ask(layers.GetLayerPreview, layer));
  EXPECT_TRUE(ask(layers.GetLayerPrinted, layer));
  EXPECT_FALSE(ask(layers.GetLayerIsTemplate, layer));
  EXPECT_FALSE(ask(layers.GetLayerDimPlacedImages, layer));
  EXPECT_FALSE(ask(layers.LayerHasArt, layer));
  EXPECT_EQ(layers.SetLayerVisible(layer, 0), kNoErr);
  EXPECT_EQ(layers.SetLayerEditable(layer, 0), kNoErr);
  EXPECT_FALSE(ask(layers.GetLayerVisible, layer));
  EXPECT_FALSE(ask(layers.GetLayerEditable, layer));
}

TEST_F(LayerSuiteTest, FindsSelectedArtInsideGroups) {
  const AILayerHandle layer = topLayer();
  newArt(kPathArt);
  const AIArtHandle group = newArt(kGroupArt);
  const AIArtHandle path = newArt(kPathArt, kPlaceInsideOnTop, newArt(kGroupArt, kPlaceInsideOnTop, group));
  newArt(kPathArt);
  EXPECT_TRUE(ask(layers.LayerHasArt, layer));
  EXPECT_FALSE(ask(layers.LayerHasSelectedArt, layer));
  document->setSelected(host::idOfHandle(path, host::HandleKind::Art, document->serial()), true);
  EXPECT_TRUE(ask(layers.LayerHasSelectedArt, layer));
}

TEST_F(LayerSuiteTest, WithoutADocumentThereAreNone) {
  const AILayerHandle layer = topLayer();
  host.documents().close(*document);
  AILayerHandle other = nullptr;
  AIBoolean flag = 0;
  std::int32_t count = 0;
  EXPECT_EQ(layers.CountLayers(&count), kNoDocumentErr);
  EXPECT_EQ(layers.GetNthLayer(0, &other), kNoDocumentErr);
  EXPECT_EQ(layers.GetLayerByTitle(text("Layer 1"), &other), kNoDocumentErr);
  EXPECT_EQ(layers.InsertLayer(nullptr, kPlaceAboveAll, &other), kNoDocumentErr);
  EXPECT_EQ(layers.DeleteLayer(layer), kNoDocumentErr);
  EXPECT_EQ(layers.LayerHasArt(layer, &flag), kNoDocumentErr);
}

}  // namespace
