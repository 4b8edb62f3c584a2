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
  for (int i = 0; i < 4; ++i) EXPECT_EQ(layers.DeleteLayer(topLayer()), kNoErr);
  EXPECT_EQ(layers.DeleteLayer(topLayer()), kBadParameterErr);
  EXPECT_EQ(titles(), Titles{"bottom"}) << "one layer stays";
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

}  // namespace
