// Art, layers, artboards and the document, as the wrappers show them.
#include <gmock/gmock.h>

#include "ArtboardRef.h"
#include "Exceptions.h"
#include "FramePlugin.h"
#include "HMX_AIArt.h"
#include "HMX_AILayer.h"
#include "LayerEnumerator.h"

namespace {

using testing::ElementsAre;
using Vandrell::AIPluginWrappers::Exceptions::ParameterError;

class DocumentAccess : public FrameTest {
 protected:
  std::vector<std::string> Walk(LayerEnumerator layers) {
    std::vector<std::string> titles;
    for (AILayerHandle handle = nullptr; layers.Next(&handle);) {
      char title[32] = "";
      EXPECT_EQ(HMX_AILayer(handle).GetTitle(title, sizeof title), kNoErr);
      titles.emplace_back(title);
    }
    return titles;
  }
};

TEST_F(DocumentAccess, WithoutAHandleThereAreDefaultsAndNobodyIsAsked) {
  const std::uint64_t calls = host.refusal().callCount();
  HMX_AILayer layer(nullptr);
  EXPECT_TRUE(layer.IsVisible() && layer.IsPreview() && layer.IsEditable() && layer.IsPrinted());
  EXPECT_FALSE(layer.IsSelected() || layer.HasArt() || layer.HasSelectedArt() || layer.IsTemplate());
  EXPECT_EQ(layer.lastError, 1);
  char title[8] = "";
  EXPECT_EQ(layer.GetTitle(title, sizeof title), 1);
  EXPECT_EQ(layer.GetFirstArt(), nullptr);
  HMX_AIArt art(nullptr);
  AIRealRect bounds{1, 2, 3, 4};
  art.lastError = 5;
  EXPECT_EQ(art.GetTransformBounds(nullptr, 80, &bounds), 5);
  EXPECT_EQ(bounds.top, 2);
  EXPECT_EQ(host.refusal().callCount(), calls);
}

TEST_F(DocumentAccess, LayersAreWalkedFromTheTopByTheirProperties) {
  host::Document& document = OpenDocument({"Top", "Middle", "Bottom"});
  const auto& order = document.state().layers;
  document.editLayer(order[0]).visible = false;
  document.editLayer(order[2]).editable = false;

  EXPECT_THAT(Walk({}), ElementsAre("Top", "Middle", "Bottom"));
  EXPECT_THAT(Walk({nullptr, kLayerVisible}), ElementsAre("Middle", "Bottom"));
  EXPECT_THAT(Walk({nullptr, kLayerVisible, kLayerEditable}), ElementsAre("Bottom"));
  EXPECT_THAT(Walk({nullptr, 0, kLayerVisible}), ElementsAre("Top"));
  EXPECT_THAT(Walk({nullptr, 0x10}), ElementsAre()) << "a bit that means nothing is never set";
  int offered = 0;
  const auto second = [](AILayerHandle, void* data) { return ++*static_cast<int*>(data) == 2; };
  EXPECT_THAT(Walk({nullptr, kLayerVisible, 0, second, &offered}), ElementsAre("Bottom"));
  EXPECT_EQ(offered, 2) << "only layers that passed the masks are offered";
}

TEST_F(DocumentAccess, ArtboardsEndWithAParameterError) {
  ArtboardRef artboard;
  EXPECT_THROW(artboard.SetIndex(0), ParameterError) << "without a document there is none";
  OpenDocument({"Layer"}, {{0, 300, 400, 0}, {500, 300, 900, 0}});
  std::vector<AIReal> lefts;
  try {
    for (std::uint32_t index = 0;; ++index) {
      AIRealRect rect{};
      artboard.SetIndex(index);
      artboard.GetRect(&rect);
      lefts.push_back(rect.left);
    }
  } catch (const ParameterError& error) {
    EXPECT_EQ(error.GetMessage(), "Parameter Error");
  }
  EXPECT_THAT(lefts, ElementsAre(0, 500));
  AIRealRect rect{};
  EXPECT_THROW(artboard.GetRect(&rect), ParameterError) << "the index was stored all the same";
  artboard.SetIndex(0);
  ASSERT_EQ(host.refusal().add("AI Artboard Suite:GetPosition"), "");
  EXPECT_THROW(artboard.GetRect(&rect), ParameterError);
}

}  // namespace
