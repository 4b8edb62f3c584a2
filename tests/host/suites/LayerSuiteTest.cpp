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

  using Titles = std::vector<std::string>;
};

TEST_F(LayerSuiteTest, InsertsWhereTold) {
  const AILayerHandle first = topLayer();
  insert(nullptr, kPlaceAboveAll, "top");
  insert(nullptr, kPlaceBelowAll, "bottom");
  insert(first, kPlaceAbove, "above");
  insert(first, kPlaceBelow, "below");
  EXPECT_EQ(titles(), (Titles{"top", "above", "Layer 1", "below", "bottom"}));
  AILayerHandle layer = nullptr;
  EXPECT_TRUE(each(kNoSuchItemErr, layers.GetNthLayer(-1, &layer), layers.GetNthLayer(5, &layer)));
  EXPECT_TRUE(each(kBadParameterErr, layers.InsertLayer(first, kPlaceInsideOnTop, &layer),
                   layers.InsertLayer(first, AIPaintOrder{}, &layer),
                   layers.InsertLayer(nullptr, kPlaceAbove, &layer),
                   layers.InsertLayer(first, kPlaceAboveAll, &layer)));
  EXPECT_EQ(titles().size(), 5U);
}

TEST_F(LayerSuiteTest, FindsTheTopmostOfExactlyThatTitle) {
  insert(nullptr, kPlaceBelowAll, "Regmark");
  const AILayerHandle upper = insert(nullptr, kPlaceAboveAll, "Regmark");
  for (const char* title : {"Regmark", "regmark", "Regmark "}) {
    AILayerHandle layer = topLayer();
    EXPECT_EQ(layers.GetLayerByTitle(text(title), &layer), kNoErr);
    EXPECT_EQ(layer, title == std::string("Regmark") ? upper : nullptr) << title;
  }
}

TEST_F(LayerSuiteTest, KeepsTheLastLayer) {
  const AILayerHandle first = topLayer();
  EXPECT_EQ(layers.DeleteLayer(first), kBadParameterErr);
  insert(nullptr, kPlaceAboveAll, "new");
  EXPECT_EQ(layers.DeleteLayer(first), kNoErr);
  EXPECT_EQ(titles(), Titles{"new"});
}

TEST_F(LayerSuiteTest, WithoutADocumentThereAreNone) {
  AILayerHandle layer = topLayer();
  host.documents().close(*document);
  std::int32_t count = 0;
  EXPECT_TRUE(each(kNoDocumentErr, layers.DeleteLayer(layer), layers.CountLayers(&count),
                   layers.GetNthLayer(0, &layer), layers.GetLayerByTitle(text("Layer 1"), &layer),
                   layers.InsertLayer(nullptr, kPlaceAboveAll, &layer)));
}

}  // namespace
